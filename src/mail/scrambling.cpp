#include "mail/scrambling.h"

#include "runtime/code_page.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"

namespace qm::mail {
namespace {

constexpr int kAlphabet = 62;
constexpr int kOtherCharacters = 1000;  // indices above are the codes of characters outside the alphabet
constexpr int kSumLimit = 2 * kAlphabet;
constexpr char16_t kMarker = u'&';

// A column of the work table.
struct Column {
  int key = 0;
  int value = 0;
};

// The runtime's generator keeps little of its state when it is reseeded, and the clock counts whole seconds:
// a draw from the earlier state goes into every bit of the seed, so that no two positions draw alike.
void ReseedFromTimer(runtime::Random& random, platform::Clock& clock) {
  const runtime::DateTime now = clock.Now();
  const double timer = (now.hour * 60.0 + now.minute) * 60.0 + now.second;
  const double earlier = random.Next();
  random.Reseed((timer + 1.0) * (1.0 + earlier));
}

int DrawKey(runtime::Random& random) {
  return runtime::CInt(static_cast<double>(random.Next()) * (kAlphabet - 1) + 1.0);
}

Column Scrambled(int index, int position, runtime::Random& random) {
  int key = DrawKey(random);
  const bool someKeyFits = 1 + index + position < kSumLimit;
  while (someKeyFits && key + index + position >= kSumLimit) key = DrawKey(random);
  const int sum = key + index + position;
  // Once or not at all where a key fits; in very long passwords as often as it takes.
  return {key, sum > kAlphabet ? (sum - 1) % kAlphabet + 1 : sum};
}

}  // namespace

int IndiceCaracter(std::u16string_view character) {
  if (character.empty()) return 0;
  const char16_t letter = character[0];
  if (letter >= u'0' && letter <= u'9') return letter - u'0' + 1;
  if (letter >= u'A' && letter <= u'Z') return letter - u'A' + 11;
  if (letter >= u'a' && letter <= u'z') return letter - u'a' + 37;
  return runtime::Asc(character.substr(0, 1)) + kOtherCharacters;
}

char16_t CaracterIndice(int index, platform::Prompts& prompts) {
  if (index >= 1 && index <= 10) return static_cast<char16_t>(index + 47);
  if (index >= 11 && index <= 36) return static_cast<char16_t>(index + 54);
  if (index >= 37 && index <= kAlphabet) return static_cast<char16_t>(index + 60);
  prompts.Warn(u"0  not valid");
  return u'\0';
}

std::u16string EscribirClave(std::u16string_view password, runtime::Random& random, platform::Clock& clock,
                             platform::Prompts& prompts) {
  const std::u16string_view text = runtime::Trim(password);
  std::u16string appended;
  std::u16string prepended;  // built from its end
  for (std::size_t at = 0; at < text.size(); ++at) {
    const int position = static_cast<int>(at) + 1;
    const int index = IndiceCaracter(text.substr(at, 1));
    char16_t key = kMarker;
    char16_t value = text[at];
    if (index <= kOtherCharacters) {
      ReseedFromTimer(random, clock);
      const Column column = Scrambled(index, position, random);
      key = CaracterIndice(column.key, prompts);
      value = CaracterIndice(column.value, prompts);
    }
    const bool odd = position % 2 != 0;
    appended += odd ? value : key;
    prepended += odd ? key : value;
  }
  return std::u16string(prepended.rbegin(), prepended.rend()) + appended;
}

}  // namespace qm::mail
