#include "mail/hand_off.h"

#include <optional>
#include <utility>

#include "mail/names.h"
#include "mail/zip_codes.h"
#include "print/text/references.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/format.h"
#include "runtime/strings.h"

namespace qm::mail {
namespace {

using runtime::RuntimeError;

constexpr std::u16string_view kRequestName = u"EMAIL.TXT";
constexpr std::u16string_view kBodyName = u"EMAIL.HTM";
constexpr int kCommonProgramFiles = 43;  // a special folder
// Windows' 255 without what a file written beside the archive adds to its name.
constexpr std::size_t kLongestArchiveName = 240;

// Runs the steps of a hand-off. A step that fails ends it, or is remembered and the next one follows.
class Steps {
 public:
  explicit Steps(bool goOn) : goOn_(goOn) {}

  template <class Step>
  void Do(Step&& step) {
    if (!goOn_) return std::forward<Step>(step)();
    try {
      std::forward<Step>(step)();
    } catch (const RuntimeError& error) {
      last_ = error;
    }
  }

  void RaiseLast() const {
    if (last_) throw *last_;
  }

 private:
  bool goOn_;
  std::optional<RuntimeError> last_;
};

// The two files in the working folder. Whatever happens, they do not stay.
class LooseFiles {
 public:
  explicit LooseFiles(const Environment& environment)
      : files_(environment.print.files),
        request_(environment.folders.RutaTrabajo(kRequestName)),
        body_(environment.folders.RutaTrabajo(kBodyName)) {}
  LooseFiles(const LooseFiles&) = delete;
  LooseFiles& operator=(const LooseFiles&) = delete;
  ~LooseFiles() {
    try {
      Steps both(true);
      both.Do([&] { Delete(); });
      both.Do([&] { DeleteIfThere(body_); });
    } catch (...) {  // memory has run out as well; nothing else can be done about it here
    }
  }

  [[nodiscard]] const std::u16string& Request() const { return request_; }
  [[nodiscard]] const std::u16string& Body() const { return body_; }

  void Delete() {
    DeleteIfThere(request_);
    DeleteIfThere(body_);
  }

 private:
  void DeleteIfThere(const std::u16string& path) {
    if (files_.Exists(path)) files_.Delete(path);
  }

  platform::Files& files_;
  std::u16string request_;
  std::u16string body_;
};

bool CanTravel(const std::u16string& path, platform::Files& files) {
  return CanNameFile(path) && files.CanRead(path);
}

// The name under which Windows finds a file: without a stream behind it, and without final dots and blanks.
std::u16string_view NameAsFound(std::u16string_view path) {
  std::u16string_view name = path.substr(path.find_last_of(u"\\/") + 1);  // all of it without a separator
  name = name.substr(0, name.find(u':'));
  return name.substr(0, name.find_last_not_of(u" .") + 1);
}

// An entry of these names would take the place of the request or of the body.
void CheckNames(const std::vector<std::u16string>& paths, platform::Folders& folders) {
  for (const std::u16string& path : paths) {
    const std::u16string full = folders.FullPath(path);
    const std::u16string_view name = NameAsFound(full);
    if (runtime::EqualFolded(name, kRequestName) || runtime::EqualFolded(name, kBodyName)) ThrowBadFileName();
  }
}

// The folder stands between quotes on the sender's command line.
void CheckRutaEmail(std::u16string_view folder) {
  for (const char16_t letter : folder) {
    if (letter < u' ' || runtime::ToByte(letter) == '"') ThrowBadFileName();
  }
}

std::u16string ArchiveName(std::u16string_view subject, std::u16string_view recipient,
                           const Environment& environment) {
  std::u16string name = runtime::Format(environment.print.clock.Now(), u"yyyy-MM-dd·HH mm");
  name.append(u"·").append(NombreArchivoValido(subject));
  name.append(u"·").append(NombreArchivoValido(recipient)).append(u"·.zip");
  if (name.size() > kLongestArchiveName) ThrowBadFileName();
  return name;
}

// Errors of the system are ignored: an attachment's folder may be gone.
void GoTo(std::u16string_view folder, platform::Folders& folders) {
  Steps(true).Do([&] {
    if (!folder.empty()) folders.SetCurrentFolder(folder);
  });
}

void Pack(std::u16string_view archive, const std::vector<std::u16string>& files,
          const Environment& environment) {
  AcumularErrorZip(static_cast<int>(environment.archiver.Add(archive, files)));
}

// What has no folder of its own is looked for in the current one, as it is before that changes.
void PackFromItsFolder(std::u16string_view archive, const std::u16string& path,
                       const Environment& environment) {
  const std::u16string full = environment.folders.FullPath(path);
  GoTo(FolderOf(path), environment.folders);
  if (CanNameFile(full)) Pack(archive, {full}, environment);
}

void PackAll(std::u16string_view archive, const LooseFiles& loose, const HandOff& message,
             const Environment& environment) {
  GoTo(environment.folders.RutaTrabajo(u""), environment.folders);
  Pack(archive, {loose.Request(), loose.Body()}, environment);
  for (const std::u16string& path : message.references) PackFromItsFolder(archive, path, environment);
  for (const std::u16string& path : message.attachments) {
    if (!path.empty()) PackFromItsFolder(archive, path, environment);
  }
}

void StartSender(std::u16string_view rutaEmail, const Environment& environment) {
  const std::u16string folder = environment.folders.CarpetaEspecial(kCommonProgramFiles);
  // Without it the path would be one of the current drive, which may be an attachment's.
  if (folder.empty()) throw RuntimeError(runtime::ErrorNumber::FileNotFound);
  environment.processes.StartHidden(folder + u"\\Quillmar\\Qmenviar.exe",
                                    std::u16string(u"\"").append(rutaEmail).append(u"\""));
}

}  // namespace

std::u16string NombresAdjuntos(const std::vector<std::u16string>& paths) {
  std::u16string names;
  for (const std::u16string& path : paths) names.append(BareName(path)).append(u";");
  return names;
}

void AddReferences(HandOff& message, const Environment& environment) {
  const std::u16string list = text::ReferencedFiles(message.body, message.request.htmDir);
  for (const std::u16string& path : runtime::Split(list, u";")) {
    // A name with a ";" in it has fallen apart, and its later part could be any file of the disk.
    if (!path.starts_with(message.request.htmDir)) continue;
    // In full: packing changes the current folder, in which it was found.
    if (CanTravel(path, environment.print.files))
      message.references.push_back(environment.folders.FullPath(path));
  }
  message.request.attachments += NombresAdjuntos(message.references);
}

void EntregarMensaje(const HandOff& message, std::u16string& nombreDestinatario,
                     const Environment& environment) {
  CheckNames(message.references, environment.folders);
  CheckNames(message.attachments, environment.folders);
  CheckRutaEmail(message.rutaEmail);
  if (nombreDestinatario.find_first_of(u"@;") != std::u16string::npos) nombreDestinatario = u"Destinatario";
  const std::u16string outbox =
      environment.folders.FullPath(message.rutaEmail + u"Bandeja de Salida") + u"\\";
  const std::u16string archive = outbox + ArchiveName(message.request.tema, nombreDestinatario, environment);

  Steps steps(message.goOnAfterErrors);
  {
    LooseFiles loose(environment);
    platform::Files& files = environment.print.files;
    steps.Do([&] {
      files.Replace(loose.Request(), RequestBytes(message.request, message.order, environment.print.locale));
    });
    steps.Do(
        [&] { files.Replace(loose.Body(), runtime::ToBytes(text::ShortenImageReferences(message.body))); });
    CrearCarpeta(outbox, environment.folders);
    steps.Do([&] { PackAll(archive, loose, message, environment); });
    // Packing never interrupts a hand-off, and nothing it ends with is kept: this stays silent.
    if (const std::u16string zipErrors; !zipErrors.empty()) environment.print.prompts.Warn(zipErrors);
    steps.Do([&] { loose.Delete(); });
  }
  steps.Do([&] { StartSender(message.rutaEmail, environment); });
  steps.RaiseLast();
}

}  // namespace qm::mail
