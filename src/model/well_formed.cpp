#include "model/well_formed.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

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

  XmlShape Examine() {
    bool rootFirst = false;
    if (!Prolog(rootFirst) || !Root() || !Epilog()) return XmlShape::IllFormed;
    return rootFirst ? XmlShape::RootComesFirst : XmlShape::OtherNodeFirst;
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
    if (end == text_.npos) return false;
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
    if (Take("/")) return EndTag();
    if (Take("?")) return Instruction(false);
    if (Take("!--")) return Comment();
    std::string_view ignored;
    if (Take("![CDATA[")) return TakeUntil("]]>", ignored);
    return StartTag();
  }

  bool StartTag() {
    std::string_view name;
    if (!Name(name) || !Attributes()) return false;
    if (Take("/>")) return true;
    open_.push_back(name);
    return Take(">") && open_.size() <= kMaxDepth;
  }

  bool EndTag() {
    if (!Take(open_.back()) || Is(kNamePart)) return false;
    open_.pop_back();
    SkipBlanks();
    return Take(">");
  }

  bool Attributes() {
    attributes_.clear();
    while (SkipBlanks() && Is(kNameStart)) {
      std::string_view name;
      if (!Name(name) || !AttributeValue()) return false;
      attributes_.push_back(name);
    }
    std::sort(attributes_.begin(), attributes_.end());
    return std::adjacent_find(attributes_.begin(), attributes_.end()) == attributes_.end();
  }

  bool AttributeValue() {
    SkipBlanks();
    if (!Take("=")) return false;
    SkipBlanks();
    const char quote = Current();
    if (quote != '"' && quote != '\'') return false;
    ++at_;
    while (true) {
      SkipWhile<false>(kValueStop);
      if (AtEnd() || Current() == '<' || Is(kForbidden)) return false;
      const char stop = text_[at_++];
      if (stop == quote) return true;
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
};

}  // namespace

XmlShape Examine(std::string_view bytes) { return Scanner(bytes).Examine(); }

}  // namespace qm::model
