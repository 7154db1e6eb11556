#include "mail/attachments.h"

#include "mail/names.h"
#include "mail/text_layer.h"
#include "platform/pdf_writer.h"
#include "print/model_choice.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace qm::mail {
namespace {

using platform::PicturePage;
using platform::ZipResult;

constexpr std::u16string_view kBitmapName = u"EFactura.bmp";
constexpr std::u16string_view kPdfEnding = u".PDF";
constexpr double kTwipsPerPixel = 15;

std::u16string Joined(std::u16string_view folder, std::u16string_view separator, std::u16string_view name) {
  return std::u16string(folder).append(separator).append(name);
}

bool EndsInBackslash(std::u16string_view folder) { return folder.ends_with(u'\\'); }

// The current model on a page of its own, with the texts that were drawn.
struct DrawnPage {
  DrawnPage(data::PrintJob& job, const Environment& environment)
      : page(environment.pages.New()), texts(*page) {
    const model::ModelTexts model = print::FindCurrentModel(job, environment.print);
    (void)print::Draw(job, environment.print, model, texts);
  }

  std::unique_ptr<PicturePage> page;
  TextLayer texts;
};

// A device would swallow the document, or wait for ever.
void CheckName(std::u16string_view zipFile) {
  if (!CanNameFile(zipFile)) ThrowBadFileName();
}

void DefaultFolder(std::u16string& eDir, const Environment& environment) {
  if (eDir.empty()) eDir = environment.folders.ComponentFolder() + u"\\";
}

// One level only; whether that helped shows when the first file is written.
void MakeMissingFolder(const std::u16string& eDir, const Environment& environment) {
  if (!environment.folders.Matches(eDir + u"*.*")) (void)environment.folders.Make(eDir);
}

// Not flushed: a lost bitmap is made again with the next document, and its flush would cost a fifth of the
// time that a document takes.
void SaveBitmap(DrawnPage& drawn, const std::u16string& eDir, const Environment& environment) {
  environment.print.files.ReplaceUnflushed(Joined(eDir, u"\\", kBitmapName), drawn.page->BmpBytes());
}

bool IsOpenElsewhere(const std::u16string& path, const Environment& environment) {
  if (!environment.print.files.Exists(path)) return false;
  try {
    environment.print.files.TryAppend(path);
  } catch (const runtime::RuntimeError& error) {
    return error.Is(runtime::ErrorNumber::PermissionDenied);
  }
  return false;
}

std::u16string TitleOf(std::u16string_view fileName) {
  const std::u16string_view name = fileName.substr(fileName.find_last_of(u"\\/:") + 1);
  return std::u16string(name.substr(0, name.rfind(u'.')));
}

// Of a bitmap that is not the one just drawn.
std::string PdfOfFile(const std::u16string& path, const platform::PdfProperties& properties,
                      const Environment& environment) {
  if (!environment.print.files.Exists(path)) throw runtime::RuntimeError(runtime::ErrorNumber::FileNotFound);
  const std::unique_ptr<platform::Picture> picture = environment.print.pictures.Load(path);
  const std::unique_ptr<PicturePage> page = environment.pages.New();
  page->SetPageSize(picture->WidthPixels() * kTwipsPerPixel, picture->HeightPixels() * kTwipsPerPixel);
  page->PaintPicture(*picture, {0, 0});
  return platform::PdfOfPage(page->Image(), {}, properties);
}

// The bitmap was saved behind a backslash and is looked for without one: where the folder ends in one, both
// are the same file, and its picture is still at hand.
std::string PdfOfBitmap(DrawnPage& drawn, const std::u16string& eDir, std::u16string_view fileName,
                        const Environment& environment) {
  const platform::PdfProperties properties{.title = TitleOf(fileName)};
  if (!EndsInBackslash(eDir)) return PdfOfFile(eDir + std::u16string(kBitmapName), properties, environment);
  return platform::PdfOfPage(drawn.page->Image(), drawn.texts.Texts(), properties);
}

void TellResult(ZipResult result, const Environment& environment) {
  if (result == ZipResult::Done) return;
  environment.print.prompts.Warn(result == ZipResult::DiskFull
                                     ? u"Disco lleno ... Copia Abortada"
                                     : u"Se produjeron errores al crear el archivo ZIP");
}

}  // namespace

void CrearZip(data::PrintJob& job, const Environment& environment, std::u16string& eDir,
              std::u16string_view zipFile) {
  if (runtime::UCase(zipFile).ends_with(kPdfEnding)) return CrearPdf(job, environment, eDir, zipFile);
  CheckName(zipFile);
  DefaultFolder(eDir, environment);
  DrawnPage drawn(job, environment);
  MakeMissingFolder(eDir, environment);
  SaveBitmap(drawn, eDir, environment);
  environment.folders.SetCurrentFolder(eDir);
  TellResult(environment.archiver.Add(environment.folders.FullPath(zipFile),
                                      {environment.folders.FullPath(kBitmapName)}),
             environment);
}

void CrearPdf(data::PrintJob& job, const Environment& environment, std::u16string& eDir,
              std::u16string_view zipFile) {
  CheckName(zipFile);
  DefaultFolder(eDir, environment);
  DrawnPage drawn(job, environment);
  MakeMissingFolder(eDir, environment);
  if (IsOpenElsewhere(Joined(eDir, u"", zipFile), environment)) return;
  SaveBitmap(drawn, eDir, environment);
  environment.print.files.Replace(Joined(eDir, u"\\", zipFile),
                                  PdfOfBitmap(drawn, eDir, zipFile, environment));
}

}  // namespace qm::mail
