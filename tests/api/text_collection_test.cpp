#include <gtest/gtest.h>

#include "tests/api/component.h"

namespace qm::tests {
namespace {

// The list of the mail profiles, as every host gets it.
class TextCollection : public testing::Test {
 protected:
  TextCollection() {
    const auto email = component_.Create<_Email>(CLSID_Email, IID__Email);
    SHORT position = 5;
    Bstr profile;
    email->LeerPerfiles(&position, profile.Ref(), &list_);
    while (Count() > 0) Call(list_.Get(), L"Remove", {Value(1L)});
    for (const wchar_t* text : {L"uno", L"dos", L"tres"}) Call(list_.Get(), L"Add", {Value(text)});
  }

  LONG Count() { return Get(list_.Get(), L"Count").value.lVal; }
  std::wstring Texts() {
    std::wstring texts;
    for (LONG i = 1; i <= Count(); ++i) texts += Call(list_.Get(), L"Item", {Value(i)}).value.Text() + L" ";
    return texts;
  }
  Outcome CallDefault(WORD flags, Value index) {
    Outcome outcome;
    VARIANT argument = index;
    DISPPARAMS arguments{&argument, nullptr, 1, 0};
    EXCEPINFO exception{};
    outcome.result = list_->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, flags, &arguments,
                                   &outcome.value, &exception, nullptr);
    return outcome;
  }

  Component component_;
  ComPtr<IDispatch> list_;
};

TEST_F(TextCollection, KeepsTheOrderOfItsTexts) {
  EXPECT_EQ(Count(), 3);
  EXPECT_EQ(Texts(), L"uno dos tres ");
  Call(list_.Get(), L"remove", {Value(2L)});
  EXPECT_EQ(Texts(), L"uno tres ");
}

TEST_F(TextCollection, HasItemAsItsDefaultMethodOrProperty) {
  EXPECT_EQ(CallDefault(DISPATCH_METHOD, Value(3L)).value.Text(), L"tres");
  EXPECT_EQ(CallDefault(DISPATCH_PROPERTYGET, Value(3.0)).value.Text(), L"tres");
  EXPECT_EQ(Invoke(list_.Get(), L"Item", DISPATCH_PROPERTYGET, {Value(1L)}).value.Text(), L"uno");
  EXPECT_EQ(Call(list_.Get(), L"Count").value.lVal, 3);
}

TEST_F(TextCollection, RefusesPlacesWhereNothingIsAndKeys) {
  EXPECT_EQ(Call(list_.Get(), L"Item", {Value(0L)}).error, RuntimeResult(9));
  EXPECT_EQ(Call(list_.Get(), L"Item", {Value(4L)}).error, RuntimeResult(9));
  EXPECT_EQ(Call(list_.Get(), L"Remove", {Value(-1L)}).error, RuntimeResult(9));
  EXPECT_EQ(Call(list_.Get(), L"Item", {Value(L"uno")}).error, RuntimeResult(5));
  EXPECT_EQ(Call(list_.Get(), L"Item").error, RuntimeResult(449));
  EXPECT_EQ(Put(list_.Get(), L"Count", Value(1L)).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(Count(), 3);
}

TEST_F(TextCollection, IsEnumeratedAsItWasWhenThatBegan) {
  Outcome made;
  DISPPARAMS none{};
  ASSERT_EQ(list_->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT,
                          DISPATCH_METHOD | DISPATCH_PROPERTYGET, &none, &made.value, nullptr, nullptr),
            S_OK);
  ASSERT_EQ(made.value.vt, VT_UNKNOWN);
  ComPtr<IEnumVARIANT> walk;
  ASSERT_EQ(made.value.punkVal->QueryInterface(IID_PPV_ARGS(&walk)), S_OK);
  Call(list_.Get(), L"Remove", {Value(1L)});
  std::wstring texts;
  for (;;) {
    Value text;
    ULONG fetched = 0;
    if (walk->Next(1, &text, &fetched) != S_OK) break;
    texts += text.Text() + L" ";
  }
  EXPECT_EQ(texts, L"uno dos tres ");
}

TEST_F(TextCollection, KeepsTheLibraryInUse) {
  EXPECT_EQ(component_.CanUnloadNow(), S_FALSE);
  list_.Reset();
  EXPECT_EQ(component_.CanUnloadNow(), S_OK);
}

}  // namespace
}  // namespace qm::tests
