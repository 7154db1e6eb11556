// A page of 60 fields from the host's data to the finished PDF through CrearZip, beside a plain program that
// draws the same texts, writes the same bitmap and a PDF of it with the usual compression and no predictor.
//   PDF   goal: at most 0.6 times as long as the plain program
//   ZIP   the same page's bitmap in an archive at the highest level
// Then where our time goes. Both sides write into the user's scratch folder; ours swaps its files and flushes
// the one that is to be sent.

#include <windows.h>

#include <zlib.h>

#include <cstdio>

#include "bench/raw_scene.h"
#include "bench/scene.h"
#include "bench/scene_model.h"
#include "bench/stopwatch.h"
#include "mail/attachments.h"
#include "mail/text_layer.h"
#include "platform/pdf_image.h"
#include "platform/win32/files.h"
#include "platform/win32/folders.h"
#include "platform/win32/picture_surface.h"
#include "platform/win32/pictures.h"
#include "platform/win32/printers.h"
#include "platform/win32/processes.h"
#include "platform/win32/prompts.h"
#include "platform/win32/settings.h"
#include "platform/win32/spooler.h"
#include "platform/win32/user_settings.h"
#include "platform/zip_archiver.h"
#include "print/model_choice.h"
#include "recordfile/file_record_store.h"

namespace {

using namespace qm;
namespace win32 = platform::win32;

constexpr double kRowHeight = 1200;
constexpr double kPageWidth = 11906;
constexpr double kPageHeight = 16838;

// Files that can be told not to wait for the disk, as the plain program does not.
class MeasuredFiles : public win32::Win32Files {
 public:
  bool waits = true;

  void Replace(std::u16string_view path, std::string_view bytes) override {
    if (waits) return Win32Files::Replace(path, bytes);
    ReplaceUnflushed(path, bytes);
  }
};

class Host {
 public:
  explicit Host(const std::vector<bench::SceneField>& scene)
      : folder_(files_.ScratchFolder() + u"adjuntos\\") {
    bench::FillJob(job_, scene);
    folders_.Make(folder_);
    modelFile_.SetName(folder_ + u"adjuntos.xml");
    model::SaveModel(files_, modelFile_.name, bench::ModelOf(scene, u"", kPageWidth, kPageHeight),
                     printing_.locale);
  }

  void Make(std::u16string_view fileName, bool waits = true) {
    files_.waits = waits;
    mail::CrearZip(job_, environment_, folder_, fileName);
    files_.waits = true;
  }
  void Draw(platform::PicturePage& page) {
    mail::TextLayer texts(page);
    (void)print::Draw(job_, printing_, print::FindCurrentModel(job_, printing_), texts);
    (void)page.Image();
  }
  void SaveBitmap(std::string_view bytes) { files_.ReplaceUnflushed(folder_ + u"EFactura.bmp", bytes); }
  void Replace(std::u16string_view fileName, std::string_view bytes) {
    files_.Replace(folder_ + std::u16string(fileName), bytes);
  }
  [[nodiscard]] std::u16string Path(std::u16string_view fileName) const {
    return folder_ + std::u16string(fileName);
  }
  [[nodiscard]] std::size_t Size(std::u16string_view fileName) { return files_.Read(Path(fileName))->size(); }

 private:
  MeasuredFiles files_;
  win32::Win32Printers printers_;
  win32::Win32Spooler spooler_;
  win32::Win32Pictures pictures_;
  win32::Win32Prompts prompts_;
  win32::Win32Settings settings_;
  win32::Win32Clock clock_;
  win32::Win32Folders folders_;
  win32::Win32Processes processes_;
  win32::Win32PicturePages pages_;
  platform::ZipArchiver archiver_{files_};
  recordfile::FileRecordStore profiles_{files_, u"", {}};
  runtime::Random random_;
  model::ModelFile modelFile_;
  print::PaperFormState paperForms_;
  data::PrintJob job_;
  std::u16string folder_;
  print::Environment printing_{files_,    printers_, spooler_,   pictures_,   prompts_,
                               settings_, clock_,    modelFile_, paperForms_, win32::UserLocale()};
  mail::Environment environment_{printing_, folders_, processes_, archiver_, pages_, profiles_, random_};
};

void WriteRaw(const std::u16string& path, std::string_view bytes) {
  const win32::OwnedFile file(CreateFileW(win32::Wide(path), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                          FILE_ATTRIBUTE_NORMAL, nullptr));
  DWORD written = 0;
  WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

// Red, green, blue from the top row down, as a PDF has them.
std::string RawPixels(const win32::Bitmap24& page) {
  std::string pixels;
  pixels.resize(static_cast<std::size_t>(page.Width()) * static_cast<std::size_t>(page.Height()) * 3);
  char* out = pixels.data();
  for (int y = 0; y < page.Height(); ++y) {
    const std::uint8_t* row = page.Row(y);
    for (int x = 0; x < page.Width(); ++x, row += 3) {
      *out++ = static_cast<char>(row[2]);
      *out++ = static_cast<char>(row[1]);
      *out++ = static_cast<char>(row[0]);
    }
  }
  return pixels;
}

std::string RawPdf(const win32::Bitmap24& page) {
  const std::string pixels = RawPixels(page);
  uLongf length = compressBound(static_cast<uLong>(pixels.size()));
  std::string data(length, '\0');
  compress2(reinterpret_cast<Bytef*>(data.data()), &length, reinterpret_cast<const Bytef*>(pixels.data()),
            static_cast<uLong>(pixels.size()), 6);
  data.resize(length);
  return "%PDF-1.4 header and image dictionary\n" + data + "\ntrailer\n";  // a few bytes more or less
}

void MakeRaw(const bench::RawScene& scene, const std::u16string& bitmap, const std::u16string& pdf) {
  const win32::Bitmap24 page(794, 1123);
  {
    const win32::BitmapDc dc(page.Handle());
    scene.Draw(dc.Get());
    GdiFlush();
  }
  WriteRaw(bitmap, page.BmpBytes());
  WriteRaw(pdf, RawPdf(page));
}

void TimeParts(Host& host) {
  const std::unique_ptr<platform::PicturePage> page = win32::Win32PicturePages().New();
  host.Draw(*page);
  const std::string bitmap = page->BmpBytes();
  const std::string image = platform::PdfImageOf(page->Image()).data;
  const std::vector<double> times = bench::FastestTurns(
      20, {[&] { host.Draw(*win32::Win32PicturePages().New()); }, [&] { (void)page->BmpBytes(); },
           [&] { host.SaveBitmap(bitmap); }, [&] { WriteRaw(host.Path(u"raw.bmp"), bitmap); },
           [&] { (void)platform::PdfImageOf(page->Image()); }, [&] { host.Replace(u"parte.pdf", image); }});
  std::printf(
      "of it: drawing %.2f ms, the bitmap's bytes %.2f ms, their file %.2f ms (plainly written %.2f ms)\n",
      times[0], times[1], times[2], times[3]);
  std::printf("of it: compressing the picture %.2f ms, the PDF's file %.2f ms\n", times[4], times[5]);
}

}  // namespace

int main() {
  const std::vector<bench::SceneField> scene = bench::Scene(kRowHeight);
  Host host(scene);
  const bench::RawScene raw(scene, 96, ANTIALIASED_QUALITY);
  const std::vector<double> times =
      bench::FastestTurns(40, {[&] { host.Make(u"fra.pdf"); }, [&] { host.Make(u"fra.pdf", false); },
                               [&] { MakeRaw(raw, host.Path(u"raw.bmp"), host.Path(u"raw.pdf")); }});
  const std::vector<double> zipTimes = bench::FastestTurns(10, {[&] { host.Make(u"fra.zip"); }});
  std::printf(
      "PDF: CrearZip %.2f ms, %zu bytes; plain program %.2f ms, %zu bytes; ratio %.2f (goal: at most 0.6)\n",
      times[0], host.Size(u"fra.pdf"), times[2], host.Size(u"raw.pdf"), times[0] / times[2]);
  std::printf("PDF: without waiting for the disk %.2f ms, ratio %.2f\n", times[1], times[1] / times[2]);
  std::printf("ZIP: CrearZip %.2f ms, %zu bytes\n", zipTimes[0], host.Size(u"fra.zip"));
  TimeParts(host);
  return 0;
}
