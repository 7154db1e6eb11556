#include "print/page_settings.h"

#include <algorithm>

#include "print/text/text_helpers.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

namespace qm::print {

namespace {

class SettingsReader {
 public:
  SettingsReader(data::PrintJob& job, const Environment& environment, Output output)
      : job_(job), environment_(environment), output_(output) {}

  void Read(const model::Property& attribute);

  [[nodiscard]] bool EndedByUser() const { return endedByUser_; }
  [[nodiscard]] const PageSettings& Settings() const { return settings_; }

 private:
  using Member = void (SettingsReader::*)(std::u16string_view);
  struct Entry {
    std::u16string_view attribute;
    Member read;
  };
  static const Entry kAttributes[];

  void ReadWidth(std::u16string_view text) { settings_.width = text::ParseNumber(text, environment_.locale); }
  void ReadHeight(std::u16string_view text) {
    settings_.height = text::ParseNumber(text, environment_.locale);
  }
  void ReadCopies(std::u16string_view text) { settings_.copies = runtime::CInt(runtime::Val(text)); }
  void ReadBackground(std::u16string_view text);
  void ReadPrinter(std::u16string_view text);

  [[nodiscard]] std::vector<std::u16string> InstalledPrinters();
  [[nodiscard]] std::u16string AskForPrinter(const std::u16string& missing,
                                             const std::vector<std::u16string>& installed);

  data::PrintJob& job_;
  const Environment& environment_;
  Output output_;
  PageSettings settings_;
  bool endedByUser_ = false;
};

const SettingsReader::Entry SettingsReader::kAttributes[] = {
    {u"Width", &SettingsReader::ReadWidth},     {u"Height", &SettingsReader::ReadHeight},
    {u"Copias", &SettingsReader::ReadCopies},   {u"Imagen", &SettingsReader::ReadBackground},
    {u"Printer", &SettingsReader::ReadPrinter},
};

void SettingsReader::Read(const model::Property& attribute) {
  const auto entry =
      std::find_if(std::begin(kAttributes), std::end(kAttributes),
                   [&](const Entry& candidate) { return candidate.attribute == attribute.name; });
  if (entry == std::end(kAttributes)) return;
  try {
    (this->*entry->read)(attribute.text);
  } catch (const runtime::RuntimeError&) {
    // Models made by hand print with what can be read of them.
  }
}

void SettingsReader::ReadBackground(std::u16string_view text) {
  std::u16string path = environment_.modelFile.folder;
  path += text;
  if (environment_.files.Exists(path)) settings_.background = std::move(path);
}

void SettingsReader::ReadPrinter(std::u16string_view text) {
  if (output_ != Output::Printer) return;  // a drawing needs no printer, missing or not
  std::u16string name = job_.substitutePrinter.value_or(std::u16string(text));
  for (;;) {
    const auto installed = InstalledPrinters();
    if (std::find(installed.begin(), installed.end(), name) != installed.end()) {
      settings_.printer = std::move(name);
      return;
    }
    endedByUser_ = true;  // until a printer is chosen: a prompt that fails ends the print as well
    name = AskForPrinter(name, installed);
    if (name.empty()) return;
    endedByUser_ = false;
    job_.substitutePrinter = name;
  }
}

// A list that cannot be had is an empty one, and the user is asked.
std::vector<std::u16string> SettingsReader::InstalledPrinters() {
  try {
    return environment_.printers.DeviceNames();
  } catch (const runtime::RuntimeError&) {
    return {};
  }
}

std::u16string SettingsReader::AskForPrinter(const std::u16string& missing,
                                             const std::vector<std::u16string>& installed) {
  try {
    return environment_.prompts.ChoosePrinter(
        u"Error Impresora", u"No existe la impresora (" + missing + u") Elegir impresora", installed);
  } catch (const runtime::RuntimeError&) {
    environment_.prompts.Warn(u"No está configurada la impresora");
    return {};
  }
}

}  // namespace

std::optional<PageSettings> ReadPageSettings(const model::ModelTexts& model, data::PrintJob& job,
                                             const Environment& environment, Output output) {
  SettingsReader reader(job, environment, output);
  for (const model::Property& attribute : model.attributes) {
    reader.Read(attribute);
    if (reader.EndedByUser()) return std::nullopt;
  }
  PageSettings settings = reader.Settings();
  if (output == Output::Drawing) settings.copies = 1;
  return settings;
}

}  // namespace qm::print
