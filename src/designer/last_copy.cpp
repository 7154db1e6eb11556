#include "designer/last_copy.h"

#include <cstdint>

#include "model/well_formed.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace qm::designer {
namespace {

using Text = std::u16string_view;

constexpr Text kFolders[] = {u"\\TALVO", u"\\Modelos"};

// FNV-1a over the code units of the path, in which case tells no files apart.
std::u16string Hash(Text path) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char16_t unit : runtime::UCase(path))
    for (const std::uint64_t byte : {unit & 0xFFU, static_cast<unsigned>(unit) >> 8U})
      hash = (hash ^ byte) * 0x100000001B3U;
  std::u16string digits;
  for (int shift = 60; shift >= 0; shift -= 4) digits += u"0123456789abcdef"[(hash >> shift) & 0xFU];
  return digits;
}

Text NameOf(Text path) {
  const Text name = path.substr(path.find_last_of(u"\\/") + 1);
  return name.substr(0, name.rfind(u'.'));
}

bool HoldsModels(std::string_view bytes) {
  return !bytes.empty() && model::Outline(bytes).shape == model::XmlShape::RootComesFirst;
}

}  // namespace

LastCopy::LastCopy(platform::Files& files, platform::Folders& folders, Text modelFile)
    : files_(files), folders_(folders), modelFile_(modelFile) {
  std::u16string folder = folders.LocalData();
  if (folder.empty() || modelFile.empty()) return;
  for (const Text part : kFolders) folder += part;
  const std::u16string full = folders.FullPath(modelFile);
  path_ = folder + u"\\" + std::u16string(NameOf(full)) + u"-" + Hash(full) + u".xml";
}

void LastCopy::Keep(std::string_view bytes) {
  if (path_.empty() || !HoldsModels(bytes)) return;
  try {
    if (files_.Read(path_) == bytes) return;
    std::u16string folder = folders_.LocalData();
    for (const Text part : kFolders) {
      folder += part;
      folders_.Make(folder);  // it may be there already
    }
    files_.Replace(path_, bytes);
  } catch (const runtime::RuntimeError&) {
    // The model file itself is what matters; the copy stays as old as it is.
  }
}

void LastCopy::KeepFile() {
  try {
    Keep(files_.Read(modelFile_).value_or(std::string()));
  } catch (const runtime::RuntimeError&) {
    // Whoever needs the file itself will tell.
  }
}

bool LastCopy::IsDamaged(std::string_view bytes) {
  return !bytes.empty() && model::Outline(bytes).shape == model::XmlShape::IllFormed;
}

bool LastCopy::IsGood() {
  try {
    return !path_.empty() && HoldsModels(files_.Read(path_).value_or(std::string()));
  } catch (const runtime::RuntimeError&) {
    return false;
  }
}

void LastCopy::Restore(std::string_view damaged) {
  const std::string good = files_.Read(path_).value_or(std::string());
  files_.Replace(PlaceForDamaged(damaged), damaged);
  files_.Replace(modelFile_, good);
}

// Numbered where another damaged file of that name is kept already: "<name>.danado2".
std::u16string LastCopy::PlaceForDamaged(std::string_view damaged) {
  const std::u16string place = modelFile_ + u".danado";
  std::u16string free = place;
  for (int number = 2; number < 100; ++number) {
    const auto kept = files_.Read(free);
    if (!kept || *kept == damaged) break;
    free = place;
    for (const char digit : std::to_string(number)) free += static_cast<char16_t>(digit);
  }
  return free;
}

}  // namespace qm::designer
