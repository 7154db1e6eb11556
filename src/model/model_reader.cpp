#include "model/model_reader.h"

#include <algorithm>
#include <utility>

#include "model/xml_text.h"
#include "runtime/code_page.h"

namespace qm::model {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool EndsName(char c) { return IsBlank(c) || c == '/' || c == '>' || c == '='; }

std::string_view LocalName(std::string_view name) { return name.substr(name.find(':') + 1); }

// One pass over model, fields and their properties, which are the first three levels of elements; the texts
// of elements inside a property are part of its own.
class Reader {
 public:
  explicit Reader(std::string_view element) : rest_(element) {}

  ModelTexts Read() {
    do {
      const std::size_t markup = std::min(rest_.find('<'), rest_.size());
      if (markup > 0) Text(Taken(markup));
      if (!rest_.empty()) Markup();
    } while (depth_ > 0 && !rest_.empty());
    return std::move(texts_);
  }

 private:
  enum Level { kModel, kField, kProperty, kInside };

  std::string_view Taken(std::size_t count) {
    const std::string_view part = rest_.substr(0, count);
    rest_.remove_prefix(part.size());
    return part;
  }
  std::string_view TakenUntil(std::string_view terminator) {
    const std::string_view part = Taken(std::min(rest_.find(terminator), rest_.size()));
    Taken(terminator.size());
    return part;
  }
  bool Take(std::string_view expected) {
    if (!rest_.starts_with(expected)) return false;
    rest_.remove_prefix(expected.size());
    return true;
  }
  std::string_view TakenName() {
    return Taken(
        static_cast<std::size_t>(std::find_if(rest_.begin(), rest_.end(), EndsName) - rest_.begin()));
  }
  void SkipBlanks() {
    while (!rest_.empty() && IsBlank(rest_.front())) rest_.remove_prefix(1);
  }

  // The text that is being read, if any.
  [[nodiscard]] std::u16string* Open() {
    return inProperty_ && depth_ >= kInside ? &texts_.fields.back().back().text : nullptr;
  }

  // White space alone is a text only where it is all that an element has.
  void Text(std::string_view raw) {
    std::u16string* const text = Open();
    if (!text) return;
    const bool wholeContent = afterStartTag_ && rest_.starts_with("</");
    if (wholeContent || !std::all_of(raw.begin(), raw.end(), IsBlank)) AppendElementText(*text, raw);
    afterStartTag_ = false;
  }

  void Markup() {
    if (Take("</")) {
      TakenUntil(">");
      --depth_;
      afterStartTag_ = false;
    } else if (rest_.starts_with("<!") || rest_.starts_with("<?")) {
      OtherMarkup();
      afterStartTag_ = false;
    } else {
      StartTag();
    }
  }

  void OtherMarkup() {
    if (Take("<![CDATA[")) {
      const std::string_view data = TakenUntil("]]>");
      if (std::u16string* const text = Open()) AppendCharacterData(*text, data);
    } else {
      TakenUntil(Take("<!--") ? "-->" : "?>");
    }
  }

  void StartTag() {
    Taken(1);
    Enter(LocalName(TakenName()));
    for (SkipBlanks(); !rest_.empty() && !EndsName(rest_.front()); SkipBlanks()) Attribute();
    if (Take("/")) {
      afterStartTag_ = false;
    } else {
      ++depth_;
      afterStartTag_ = true;
    }
    Taken(1);
  }

  void Enter(std::string_view name) {
    if (depth_ == kField) {
      inField_ = name == "Campo";
      if (inField_) AddField();
    } else if (depth_ == kProperty) {
      inProperty_ = inField_ && AddProperty(name);
    }
  }

  // Most fields have as many properties as the one before.
  void AddField() {
    const std::size_t properties = texts_.fields.empty() ? 0 : texts_.fields.back().size();
    texts_.fields.emplace_back().reserve(properties);
  }

  // Looked for from where the one before was found: elements mostly stand in their usual order.
  bool AddProperty(std::string_view name) {
    for (std::size_t tried = 0; tried < kFieldElementNames.size(); ++tried) {
      const std::size_t element = likely_;
      likely_ = (likely_ + 1) % kFieldElementNames.size();
      if (kFieldElementNames[element] != name) continue;
      texts_.fields.back().push_back({static_cast<FieldElement>(element), {}});
      return true;
    }
    return false;
  }

  void Attribute() {
    const std::string_view name = TakenName();
    TakenUntil("=");
    SkipBlanks();
    const std::string_view quote = Taken(1);
    const std::string_view value = TakenUntil(quote);
    if (depth_ == kModel)
      texts_.attributes.push_back({runtime::FromBytes(LocalName(name)), AttributeText(value)});
  }

  std::string_view rest_;
  int depth_ = kModel;  // of open elements, which is also the level that the next one is on
  bool inField_ = false;
  bool inProperty_ = false;
  std::size_t likely_ = 0;  // index of the element that is expected next
  bool afterStartTag_ = false;
  ModelTexts texts_;
};

}  // namespace

ModelTexts ReadModel(std::string_view element) { return Reader(element).Read(); }

}  // namespace qm::model
