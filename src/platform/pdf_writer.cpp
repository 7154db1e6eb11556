#include "platform/pdf_writer.h"

#include "platform/deflater.h"
#include "platform/pdf_image.h"
#include "platform/pdf_text.h"
#include "runtime/error.h"

namespace qm::platform {
namespace {

constexpr double kPointsAPixel = 0.75;

std::string Reference(int object) { return std::to_string(object) + " 0 R"; }

// The numbered objects of a file, each written where it is added.
class PdfFile {
 public:
  // A number for an object that is added later.
  int Reserve() {
    offsets_.push_back(0);
    return static_cast<int>(offsets_.size());
  }

  void Add(int object, std::string_view body) {
    offsets_[static_cast<std::size_t>(object) - 1] = bytes_.size();
    bytes_ += std::to_string(object) + " 0 obj\n";
    bytes_.append(body).append("\nendobj\n");
  }
  int Add(std::string_view body) {
    const int object = Reserve();
    Add(object, body);
    return object;
  }
  int AddStream(std::string_view entries, std::string_view data) {
    std::string body =
        "<<" + std::string(entries) + "/Length " + std::to_string(data.size()) + ">>\nstream\n";
    body.append(data).append("\nendstream");
    return Add(body);
  }

  [[nodiscard]] std::string Finish(int catalog, int information) {
    const std::size_t table = bytes_.size();
    const std::string size = std::to_string(offsets_.size() + 1);
    bytes_ += "xref\n0 " + size + "\n0000000000 65535 f \n";
    for (const std::size_t offset : offsets_) {
      const std::string digits = std::to_string(offset);
      bytes_.append(10 - digits.size(), '0').append(digits).append(" 00000 n \n");
    }
    bytes_ += "trailer\n<</Size " + size + "/Root " + Reference(catalog) + "/Info " + Reference(information) +
              ">>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n";
    return std::move(bytes_);
  }

 private:
  std::string bytes_ = "%PDF-1.7\n%\xE2\xE3\xCF\xD3\n";  // bytes that mark it as no plain text
  std::vector<std::size_t> offsets_;
};

// The document's structure, for readers aloud: every text a paragraph, in their order.
std::string AddStructure(PdfFile& file, int page, std::size_t texts) {
  const int root = file.Reserve();
  const int document = file.Reserve();
  std::string paragraphs;
  for (std::size_t i = 0; i < texts; ++i) {
    paragraphs += Reference(file.Add("<</Type/StructElem/S/P/P " + Reference(document) + "/Pg " +
                                     Reference(page) + "/K " + std::to_string(i) + ">>")) +
                  " ";
  }
  file.Add(document, "<</Type/StructElem/S/Document/P " + Reference(root) + "/K[" + paragraphs + "]>>");
  file.Add(root, "<</Type/StructTreeRoot/K " + Reference(document) + "/ParentTree<</Nums[0[" + paragraphs +
                     "]]>>/ParentTreeNextKey 1>>");
  return "/MarkInfo<</Marked true>>/StructTreeRoot " + Reference(root);
}

std::string AddFonts(PdfFile& file, const PdfFonts& fonts) {
  std::string resources;
  for (std::size_t font = 0; font < fonts.Count(); ++font) {
    const int map = font == 0 ? 0 : file.AddStream("/Filter/FlateDecode", Deflated(fonts.MapToLetters(font)));
    resources += "/F" + std::to_string(font) + " " + Reference(file.Add(fonts.Dictionary(font, map)));
  }
  return resources;
}

std::string LiteralOf(std::u16string_view asciiText) {
  std::string text = "(";
  for (const char16_t unit : asciiText)
    if ((unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u'-')
      text += static_cast<char>(unit);
  return text + ")";
}

}  // namespace

std::string PdfOfPage(const PageImage& image, const std::vector<PageText>& texts,
                      const PdfProperties& properties) {
  if (image.width <= 0 || image.height <= 0 || !image.topRow)
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidPicture);
  const double width = image.width * kPointsAPixel;
  const double height = image.height * kPointsAPixel;

  PdfFonts fonts;
  std::size_t marks = 0;
  std::string content =
      "/Artifact BMC q " + PdfNumber(width) + " 0 0 " + PdfNumber(height) + " 0 0 cm/Im0 Do Q EMC\n";
  for (const PageText& text : texts)
    if (!IsBlank(text)) AppendText(content, text, height, marks++, fonts);

  PdfFile file;
  const int catalog = file.Reserve();
  const int pages = file.Reserve();
  const int page = file.Reserve();
  const PdfImage picture = PdfImageOf(image);
  std::string resources = "/XObject<</Im0 " + Reference(file.AddStream(picture.entries, picture.data)) + ">>";
  if (marks > 0) resources += "/Font<<" + AddFonts(file, fonts) + ">>";
  const int contents = file.AddStream("/Filter/FlateDecode", Deflated(content));
  file.Add(page, "<</Type/Page/Parent " + Reference(pages) + "/MediaBox[0 0 " + PdfNumber(width) + " " +
                     PdfNumber(height) + "]/Resources<<" + resources + ">>/Contents " + Reference(contents) +
                     (marks > 0 ? "/StructParents 0/Tabs/S>>" : ">>"));
  file.Add(pages, "<</Type/Pages/Kids[" + Reference(page) + "]/Count 1>>");
  const std::string structure = marks > 0 ? AddStructure(file, page, marks) : std::string();
  file.Add(catalog, "<</Type/Catalog/Pages " + Reference(pages) + "/Lang" + LiteralOf(properties.language) +
                        "/ViewerPreferences<</DisplayDocTitle true>>" + structure + ">>");
  const int information = file.Add("<</Title" + PdfUnicode(properties.title) + "/Producer(QmModImp3)>>");
  return file.Finish(catalog, information);
}

}  // namespace qm::platform
