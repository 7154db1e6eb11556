// archive_kills add ARCHIVE FOLDER      packs two files into the archive for ever, one of them in turn large
//                                       and small
// archive_kills drive COUNT ARCHIVE FOLDER  starts and kills such a host COUNT times; the archive must always
// be
//                                       whole, with one or the other
// Prints how often a host died in the middle of a swap (a file of its own was left beside).

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
      std::printf("result %d\n", static_cast<int>(result));
      return 1;
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

// Deletes what killed hosts left beside the archive.
int Sweep(const std::u16string& path) {
  int count = 0;
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(Wide(path + u".*.tmp"), &found);
  if (search == INVALID_HANDLE_VALUE) return 0;
  const std::u16string folder = path.substr(0, path.rfind(u'\\') + 1);
  do {
    if (DeleteFileW(Wide(folder + Text(found.cFileName)))) ++count;
  } while (FindNextFileW(search, &found));
  FindClose(search);
  return count;
}

// Starts a host, lets it pack for some milliseconds, kills it. False when it ended by itself.
bool Kill(const std::u16string& archive, const std::u16string& folder, DWORD milliseconds) {
  std::u16string self(MAX_PATH * 2, u'\0');
  self.resize(GetModuleFileNameW(nullptr, qm::platform::win32::WideBuffer(self), MAX_PATH * 2));
  std::u16string command = u"\"" + self + u"\" add \"" + archive + u"\" \"" + folder + u"\"";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION host{};
  if (!CreateProcessW(nullptr, qm::platform::win32::WideBuffer(command), nullptr, nullptr, FALSE, 0, nullptr,
                      nullptr, &startup, &host)) {
    return false;
  }
  const bool alive = WaitForSingleObject(host.hProcess, milliseconds) == WAIT_TIMEOUT;
  TerminateProcess(host.hProcess, 99);
  WaitForSingleObject(host.hProcess, INFINITE);
  CloseHandle(host.hThread);
  CloseHandle(host.hProcess);
  return alive;
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
  int inTheMiddle = 0;
  std::srand(GetTickCount());
  for (int i = 0; i < count; ++i) {
    if (!Kill(archive, folder, static_cast<DWORD>(60 + std::rand() % 100))) {
      std::printf("host %d ended by itself\n", i + 1);
      return 1;
    }
    if (const char* flaw = Flaw(archive, large)) {
      std::printf("after kill %d: %s\n", i + 1, flaw);
      return 1;
    }
    if (Sweep(archive) > 0) ++inTheMiddle;
  }
  std::printf("%d kills, %d of them in the middle of a swap: the archive was always whole\n", count,
              inTheMiddle);
  return inTheMiddle > 0 ? 0 : 1;
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
