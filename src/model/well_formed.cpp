#include "model/well_formed.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "runtime/code_page.h"

namespace qm::model {
namespace {

enum CharClass : std::uint8_t {
  kBlank = 1,
  kNameStart = 2,
  kNamePart = 4,
  kForbidden = 8,  // control characters that XML does not allow anywhere
  kTextStop = 16,  // what a run of element text ends at
  kValueStop = 32  // what a run of an attribute's value ends at
};

bool IsNameStart(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_' || c == u':' ||
         (c >= 0xC0 && c <= 0x2FF && c != 0xD7 && c != 0xF7) || (c >= 0x2070 && c <= 0x218F);
}

bool IsNamePart(char16_t c) {
  return IsNameStart(c) || (c >= u'0' && c <= u'9') || c == u'-' || c == u'.' || c == 0xB7;
}

std::uint8_t Classify(std::uint8_t byte) {
  const char16_t c = runtime::FromByte(byte);
  unsigned flags = 0;
  if (c == u' ' || c == u'\t' || c == u'\r' || c == u'\n') flags |= kBlank;
  if (IsNameStart(c)) flags |= kNameStart;
  if (IsNamePart(c)) flags |= kNamePart;
  if (c < 0x20 && !(flags & kBlank)) flags |= kForbidden | kTextStop | kValueStop;
  if (c == u'<' || c == u'&') flags |= kTextStop | kValueStop;
  if (c == u']') flags |= kTextStop;
  if (c == u'"' || c == u'\'') flags |= kValueStop;
  return static_cast<std::uint8_t>(flags);
}

const std::array<std::uint8_t, 256>& Classes() {
  static const auto classes = [] {
    std::array<std::uint8_t, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
      table[byte] = Classify(static_cast<std::uint8_t>(byte));
    return table;
  }();
  return classes;
}

bool IsCharacter(std::uint32_t point) {
  return point == '\t' || point == '\n' || point == '\r' || (point >= 0x20 && point <= 0xD7FF) ||
         (point >= 0xE000 && point <= 0xFFFD) || (point >= 0x10000 && point <= 0x10FFFF);
}

int DigitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 16;
}

// Each step returns false at the first thing that is wrong; the cursor then stands anywhere.
class Scanner {
 public:
  explicit Scanner(std::string_view bytes) : text_(bytes) { open_.reserve(16); }

  XmlOutline Outline() {
    bool rootFirst = false;
    if (!Prolog(rootFirst) || !Root() || !Epilog()) return {};
    outline_.shape = rootFirst ? XmlShape::RootComesFirst : XmlShape::OtherNodeFirst;
    return std::move(outline_);
  }

 private:
  [[nodiscard]] bool AtEnd() const { return at_ >= text_.size(); }
  [[nodiscard]] char Current() const { return AtEnd() ? '\0' : text_[at_]; }
  [[nodiscard]] bool Is(CharClass wanted) const {
    return !AtEnd() && (classes_[static_cast<std::uint8_t>(text_[at_])] & wanted) != 0;
  }
  bool Take(std::string_view expected) {
    if (!text_.substr(at_).starts_with(expected)) return false;
    at_ += expected.size();
    return true;
  }
  // Passes over characters that are, or are not, of a class; the whole cost of reading a large file is here.
  template <bool wanted>
  std::size_t SkipWhile(CharClass characters) {
    const std::uint8_t* const classes = classes_.data();
    const std::size_t start = at_;
    std::size_t at = start;
    while (at < text_.size() && ((classes[static_cast<std::uint8_t>(text_[at])] & characters) != 0) == wanted)
      ++at;
    at_ = at;
    return at - start;
  }
  bool SkipBlanks() { return SkipWhile<true>(kBlank) > 0; }
  // The part up to the terminator, which is taken as well.
  bool TakeUntil(std::string_view terminator, std::string_view& part) {
    const std::size_t end = text_.find(terminator, at_);
    if (end == std::string_view::npos) return false;
    part = text_.substr(at_, end - at_);
    at_ = end + terminator.size();
    return std::none_of(part.begin(), part.end(), [this](char c) {
      return (classes_[static_cast<std::uint8_t>(c)] & kForbidden) != 0;
    });
  }

  bool Name(std::string_view& name) {
    if (!Is(kNameStart)) return false;
    const std::size_t start = at_;
    SkipWhile<true>(kNamePart);
    name = text_.substr(start, at_ - start);
    return true;
  }

  bool Prolog(bool& rootFirst) {
    bool doctypeSeen = false;
    rootFirst = true;
    while (true) {
      SkipBlanks();
      const bool atStart = at_ == 0;
      if (Take("<?")) {
        if (!Instruction(atStart)) return false;
      } else if (Take("<!--")) {
        if (!Comment()) return false;
      } else if (Take("<!DOCTYPE")) {
        if (doctypeSeen || !DocumentType()) return false;
        doctypeSeen = true;
      } else {
        return true;
      }
      rootFirst = false;
    }
  }

  bool Root() {
    if (!Take("<") || !StartTag()) return false;
    while (!open_.empty()) {
      if (!Text() || !Take("<")) return false;
      if (!Markup()) return false;
    }
    return true;
  }

  bool Epilog() {
    while (true) {
      SkipBlanks();
      if (AtEnd()) return true;
      if (Take("<?") ? !Instruction(false) : !Take("<!--") || !Comment()) return false;
    }
  }

  bool Markup() {
    if (Is(kNameStart)) return StartTag();
    if (Take("/")) return EndTag();
    if (Take("?")) return Instruction(false);
    if (Take("!--")) return Comment();
    std::string_view ignored;
    return Take("![CDATA[") && TakeUntil("]]>", ignored);
  }

  // After the "<".
  bool StartTag() {
    const std::size_t begin = at_ - 1;
    std::string_view name;
    if (!Name(name) || !Attributes()) return false;
    if (open_.empty()) {
      outline_.rootName = name;
      outline_.rootTag = text_.substr(begin, at_ - begin);
    } else if (open_.size() == 1) {
      outline_.children.push_back({text_.substr(begin), numero_});
    }
    open_.push_back(name);
    const bool isEmpty = Take("/");
    if (!Take(">") || open_.size() > kMaxDepth) return false;
    if (open_.size() == 1) outline_.content = text_.substr(at_);
    if (isEmpty) Close(at_);
    return true;
  }

  // After the "</".
  bool EndTag() {
    const std::size_t begin = at_ - 2;
    if (!Take(open_.back()) || Is(kNamePart)) return false;
    SkipBlanks();
    if (!Take(">")) return false;
    Close(begin);
    return true;
  }

  void Close(std::size_t contentEnd) {
    open_.pop_back();
    const auto cut = [this](std::string_view& part, std::size_t end) {
      part = part.substr(0, end - static_cast<std::size_t>(part.data() - text_.data()));
    };
    if (open_.empty()) cut(outline_.content, contentEnd);
    if (open_.size() == 1) cut(outline_.children.back().whole, at_);
  }

  bool Attributes() {
    attributes_.clear();
    numero_ = {};
    while (SkipBlanks() && Is(kNameStart)) {
      std::string_view name;
      std::string_view value;
      if (!Name(name) || !AttributeValue(value)) return false;
      if (name == "Numero") numero_ = value;
      attributes_.push_back(name);
    }
    if (attributes_.size() < 2) return true;
    std::sort(attributes_.begin(), attributes_.end());
    return std::adjacent_find(attributes_.begin(), attributes_.end()) == attributes_.end();
  }

  bool AttributeValue(std::string_view& value) {
    SkipBlanks();
    if (!Take("=")) return false;
    SkipBlanks();
    const char quote = Current();
    if (quote != '"' && quote != '\'') return false;
    const std::size_t begin = ++at_;
    while (true) {
      SkipWhile<false>(kValueStop);
      if (AtEnd() || Current() == '<' || Is(kForbidden)) return false;
      const char stop = text_[at_++];
      if (stop == quote) {
        value = text_.substr(begin, at_ - 1 - begin);
        return true;
      }
      if (stop == '&' && !Reference()) return false;
    }
  }

  // Up to the next "<".
  bool Text() {
    while (true) {
      SkipWhile<false>(kTextStop);
      if (AtEnd() || Is(kForbidden)) return false;
      if (Current() == '<') return true;
      if (Take("]]>")) return false;
      if (text_[at_++] == '&' && !Reference()) return false;
    }
  }

  // After the "&".
  bool Reference() {
    if (Take("#x")) return CharacterReference(16);
    if (Take("#")) return CharacterReference(10);
    std::string_view name;
    if (!Name(name) || !Take(";")) return false;
    return name == "amp" || name == "lt" || name == "gt" || name == "quot" || name == "apos";
  }

  bool CharacterReference(int base) {
    constexpr std::uint32_t kBeyond = 0x110000;
    std::uint32_t point = 0;
    const std::size_t start = at_;
    for (; DigitValue(Current()) < base; ++at_)
      point = std::min(kBeyond, point * static_cast<std::uint32_t>(base) +
                                    static_cast<std::uint32_t>(DigitValue(Current())));
    return at_ > start && Take(";") && IsCharacter(point);
  }

  // After the "<!--".
  bool Comment() {
    std::string_view ignored;
    return TakeUntil("--", ignored) && Take(">");
  }

  // After the "<?". The target "xml" is the declaration's own.
  bool Instruction(bool mayBeDeclaration) {
    std::string_view target;
    std::string_view rest;
    if (!Name(target)) return false;
    if (!Is(kBlank) && !text_.substr(at_).starts_with("?>")) return false;
    if (!TakeUntil("?>", rest)) return false;
    const bool reserved = target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm' &&
                          (target[2] | 0x20) == 'l';
    return !reserved || (mayBeDeclaration && target == "xml");
  }

  // After the "<!DOCTYPE". Its declarations are passed over, not checked.
  bool DocumentType() {
    std::string_view ignored;
    if (!SkipBlanks() || !Name(ignored)) return false;
    for (int brackets = 0; !AtEnd();) {
      const char c = Current();
      if (Is(kForbidden)) return false;
      if (Take("<!--")) {
        if (!Comment()) return false;
        continue;
      }
      if (Take("<?")) {
        if (!Instruction(false)) return false;
        continue;
      }
      ++at_;
      if (c == '"' || c == '\'') {
        if (!TakeUntil(std::string_view(&c, 1), ignored)) return false;
      } else if (c == '[') {
        ++brackets;
      } else if (c == ']') {
        --brackets;
      } else if (c == '>' && brackets == 0) {
        return true;
      }
    }
    return false;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  const std::array<std::uint8_t, 256>& classes_ = Classes();
  std::vector<std::string_view> open_;
  std::vector<std::string_view> attributes_;
  std::string_view numero_;  // of the tag being read
  XmlOutline outline_;
};

}  // namespace

XmlOutline Outline(std::string_view bytes) { return Scanner(bytes).Outline(); }

}  // namespace qm::model
