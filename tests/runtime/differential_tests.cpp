// The core's value rules against the automation library itself, on the measured rows and on seeded inputs.
// Where the two differ on purpose stands in the table of deviations; any other difference fails.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <map>

#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/format.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"
#include "tests/runtime/deviations.h"
#include "tests/runtime/generated_texts.h"
#include "tests/runtime/oracle.h"
#include "tests/runtime/vectors.h"

namespace {

using namespace qm::runtime;
using qm::test::Case;
using qm::test::Generator;
using qm::test::Notation;
namespace oracle = qm::test::oracle;

constexpr std::uint64_t kSeed = 20151231;
constexpr int kTexts = 60'000;
constexpr int kNumbers = 20'000;
const Locale kLocales[] = {Locale::Spanish(), Locale::English()};

// The library overruns its buffer for numbers with larger exponents.
bool CanBeFormatted(double number) {
  const double size = std::fabs(number);
  return size == 0 || (size >= 1e-12 && size <= 1e20);
}

template <typename Action>
std::string Noted(Action&& action) {
  try {
    return action();
  } catch (const RuntimeError& error) {
    return "ERR" + std::to_string(error.number());
  }
}

class Differential : public testing::Test {
 protected:
  void Compare(Case compared) {
    ++compared_;
    if (compared.ours == compared.theirs) return;
    if (const char* const reason = qm::test::KnownDeviation(compared)) {
      ++counts_[reason];
      return;
    }
    if (++unlisted_ <= kShown) {
      ADD_FAILURE() << compared.function << " (" << (compared.locale.decimal == u',' ? "es" : "en")
                    << ") of \"" << ToUtf8(compared.text) << "\" " << Notation(compared.number) << ": core "
                    << compared.ours << ", library " << compared.theirs;
    }
  }

  void CompareText(const std::u16string& text, const Locale& locale) {
    const auto compare = [&](const char* function, const std::string& ours, const std::string& theirs) {
      Compare({function, text, 0, locale, ours, theirs});
    };
    compare("CDbl", Noted([&] { return Notation(CDbl(text, locale)); }), oracle::CDbl(text, locale));
    compare("CInt", Noted([&] { return std::to_string(CInt(text, locale)); }), oracle::CInt(text, locale));
    compare("CLng", Noted([&] { return std::to_string(CLng(text, locale)); }), oracle::CLng(text, locale));
    compare("CBool", Noted([&] { return std::string(CBool(text, locale) ? "-1" : "0"); }),
            oracle::CBool(text, locale));
  }

  void CompareNumber(double number, const Locale& locale) {
    const auto compare = [&](const std::string& function, const std::string& ours,
                             const std::string& theirs) {
      Compare({function, u"", number, locale, ours, theirs});
    };
    compare("ToText", ToUtf8(ToText(number, locale)), oracle::ToText(number, locale));
    const auto single = static_cast<float>(number);
    if (std::isfinite(single))
      compare("ToText single", ToUtf8(ToText(single, locale)), oracle::ToText(single, locale));
    for (const auto* mask : {u"###,###,##0.00", u"###,###.00", u"#,##0", u"0.0#"}) {
      if (!CanBeFormatted(number)) break;
      compare("Format " + ToUtf8(mask), ToUtf8(Format(number, mask, locale)),
              oracle::Format(number, mask, locale));
    }
    compare("CInt number", Noted([&] { return std::to_string(CInt(number)); }), oracle::CInt(number));
    compare("CLng number", Noted([&] { return std::to_string(CLng(number)); }), oracle::CLng(number));
  }

  void TearDown() override {
    EXPECT_EQ(unlisted_, 0) << "seed " << kSeed;
    std::printf("seed %llu: %d comparisons\n", static_cast<unsigned long long>(kSeed), compared_);
    for (const auto& [reason, count] : counts_) std::printf("  %7d known: %s\n", count, reason.c_str());
  }

 private:
  static constexpr int kShown = 30;
  int compared_ = 0;
  int unlisted_ = 0;
  std::map<std::string, int> counts_;
};

}  // namespace

TEST_F(Differential, MeasuredRowsAreWhatTheLibraryStillAnswers) {
  for (const qm::test::Vector& vector : qm::test::ReadVectors()) {
    if (vector.function == "CIntNum" || vector.function.starts_with("CStr") ||
        vector.function.starts_with("Format")) {
      CompareNumber(qm::test::ReadC(vector.input), vector.locale);
    } else {
      CompareText(vector.input, vector.locale);
    }
  }
}

TEST_F(Differential, GeneratedTexts) {
  Generator generate(kSeed);
  for (int round = 0; round < kTexts; ++round) {
    const std::u16string text = round % 2 == 0 ? generate.NumberText() : generate.AnyText();
    for (const Locale& locale : kLocales) CompareText(text, locale);
  }
}

TEST_F(Differential, GeneratedNumbers) {
  Generator generate(kSeed);
  for (int round = 0; round < kNumbers; ++round) {
    const double number = round % 8 == 0 ? generate.AnyDouble() : generate.Amount();
    for (const Locale& locale : kLocales) CompareNumber(number, locale);
  }
}

TEST_F(Differential, TextsFormattedByANumberMask) {
  Generator generate(kSeed);
  constexpr std::u16string_view kMask = u"###,###,##0.00";
  for (int round = 0; round < kNumbers; ++round) {
    const std::u16string text = generate.NumberText();
    if (text.find_first_of(u"eE") != text.npos)
      continue;  // of large exponents the library overruns its buffer
    for (const Locale& locale : kLocales) {
      const double number = TryCDbl(text, locale).value_or(0);
      Compare({"Format text", text, number, locale, ToUtf8(Format(text, kMask, locale)),
               oracle::Format(text, kMask, locale)});
    }
  }
}

TEST_F(Differential, Dates) {
  Generator generate(kSeed);
  for (int round = 0; round < kNumbers; ++round) {
    const DateTime moment{1930 + generate.Below(120), 1 + generate.Below(12), 1 + generate.Below(28),
                          generate.Below(24),         generate.Below(60),     generate.Below(60)};
    for (const auto* mask : {u"yyyy-MM-dd·HH mm", u"dd-mm-yy", u"hh-nn-ss", u"d-m-yyyy h-m-s"}) {
      Compare(
          {"Format date", mask, 0, kLocales[0], ToUtf8(Format(moment, mask)), oracle::Format(moment, mask)});
    }
  }
}

TEST_F(Differential, BooleanWords) {
  for (const Locale& locale : kLocales) {
    for (const bool value : {false, true}) {
      Compare({"ToText Boolean", u"", value ? 1.0 : 0.0, locale, ToUtf8(ToText(value, locale)),
               oracle::ToText(value, locale)});
    }
    for (const auto* text :
         {u"True", u"tRUE", u"Falso", u"FALSO", u"verdadero", u"#TRUE#", u"#true#", u"#FALSE#", u" True",
          u"Sí", u"On", u"Off", u"Yes", u"No", u"Verdadero ", u"ＴＲＵＥ"}) {
      CompareText(text, locale);
    }
  }
}

TEST_F(Differential, CodePageOfEveryLetterAndByte) {
  for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
    const auto letter = static_cast<char16_t>(unit);
    Compare(
        {"ToByte", {letter}, 0, {}, std::to_string(ToByte(letter)), std::to_string(oracle::ToByte(letter))});
  }
  for (int byte = 0; byte <= 0xFF; ++byte) {
    const auto value = static_cast<std::uint8_t>(byte);
    Compare({"FromByte",
             u"",
             double(byte),
             {},
             std::to_string(FromByte(value)),
             std::to_string(oracle::FromByte(value))});
  }
}

TEST_F(Differential, CapitalOfEveryLetter) {
  for (unsigned unit = 1; unit <= 0xFFFF; ++unit) {
    const auto letter = static_cast<char16_t>(unit);
    Compare({"UCase", {letter}, 0, {}, std::to_string(UCase(letter)), std::to_string(oracle::UCase(letter))});
  }
}
