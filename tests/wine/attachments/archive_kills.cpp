// archive_kills add ARCHIVE FOLDER          packs two files into the archive for ever, one of them in turn
//                                           large and small
// archive_kills drive COUNT ARCHIVE FOLDER  kills such a host COUNT times; the archive must always be whole,
//                                           with one or the other

#include <windows.h>
#include <zip.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/win32/files.h"
#include "platform/win32/wide.h"
#include "platform/zip_archiver.h"
#include "runtime/error.h"
#include "tests/wine/killed_hosts.h"

namespace {

using qm::platform::win32::Text;
using qm::platform::win32::Wide;
using qm::platform::win32::Win32Files;

const std::string kFixed = "siempre igual";
const std::string kSmall = "poco";

// Half a megabyte that compresses badly, so that writing it takes its time.
std::string Large() {
  std::string text(500000, ' ');
  std::uint32_t state = 1;
  for (char& letter : text) letter = static_cast<char>((state = state * 1664525U + 1013904223U) >> 24);
  return text;
}

int Add(const std::u16string& archive, const std::u16string& folder) {
  Win32Files files;
  qm::platform::ZipArchiver archiver(files);
  for (bool large = true;; large = !large) {
    const std::u16string changing = folder + (large ? u"\\grande\\dato.bin" : u"\\chico\\dato.bin");
    const auto result = archiver.Add(archive, {folder + u"\\fijo.txt", changing});
    if (result != qm::platform::ZipResult::Done) {
      return 100 + static_cast<int>(result);
    }
  }
}

std::string EntryOf(zip_t* archive, const char* name) {
  zip_stat_t status;
  if (zip_stat(archive, name, 0, &status) != 0) return "(not there)";
  zip_file_t* file = zip_fopen(archive, name, 0);
  if (!file) return "(cannot be opened)";
  std::string content(static_cast<std::size_t>(status.size), '\0');
  const zip_int64_t read = zip_fread(file, content.data(), content.size());
  const bool whole = zip_fclose(file) == 0 && read == static_cast<zip_int64_t>(content.size());
  return whole ? content : "(damaged)";
}

// What is wrong with the archive, or nothing. Before the first one was made there is none.
const char* Flaw(const std::u16string& path, const std::string& large) {
  Win32Files files;
  const auto bytes = files.Read(path);
  if (!bytes) return "it is not there";
  zip_source_t* source = zip_source_buffer_create(bytes->data(), bytes->size(), 0, nullptr);
  zip_t* archive = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
  if (!archive) {
    zip_source_free(source);
    return "it is no archive";
  }
  const std::string fixed = EntryOf(archive, "fijo.txt");
  const std::string changing = EntryOf(archive, "dato.bin");
  const bool two = zip_get_num_entries(archive, 0) == 2;
  zip_discard(archive);
  return two && fixed == kFixed && (changing == large || changing == kSmall) ? nullptr : "it is a mixture";
}

void Prepare(const std::u16string& archive, const std::u16string& folder, const std::string& large) {
  Win32Files files;
  for (const char16_t* name : {u"", u"\\grande", u"\\chico"}) CreateDirectoryW(Wide(folder + name), nullptr);
  files.Replace(folder + u"\\fijo.txt", kFixed);
  files.Replace(folder + u"\\grande\\dato.bin", large);
  files.Replace(folder + u"\\chico\\dato.bin", kSmall);
  (void)qm::platform::ZipArchiver(files).Add(archive,
                                             {folder + u"\\fijo.txt", folder + u"\\chico\\dato.bin"});
}

int Drive(int count, const std::u16string& archive, const std::u16string& folder) {
  const std::string large = Large();
  Prepare(archive, folder, large);
  return qm::tests::KillHosts(count, archive, u"add \"" + archive + u"\" \"" + folder + u"\"", 100,
                              [&] { return Flaw(archive, large); });
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  try {
    if (count == 4 && std::wstring_view(arguments[1]) == L"add")
      return Add(Text(arguments[2]), Text(arguments[3]));
    if (count == 5 && std::wstring_view(arguments[1]) == L"drive")
      return Drive(_wtoi(arguments[2]), Text(arguments[3]), Text(arguments[4]));
  } catch (const qm::runtime::RuntimeError& error) {
    std::printf("error %d\n", error.number());
    return 1;
  }
  return 2;
}
