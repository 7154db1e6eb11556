// Objects come and go in any order, and nothing of them stays.

#include <windows.h>

#include <gtest/gtest.h>
#include <psapi.h>

#include "tests/api/component.h"
#include "tests/api/scripted_dispatch.h"

namespace qm::tests {
namespace {

SIZE_T PrivateBytes() {
  PROCESS_MEMORY_COUNTERS_EX counters{};
  GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                       sizeof counters);
  return counters.PrivateUsage;
}

TEST(Lifetime, TheLibraryMayGoWhenNothingIsHeld) {
  const Component component;
  EXPECT_EQ(component.CanUnloadNow(), S_OK);
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(component.GetClassObject(CLSID_PrintForm, IID_IClassFactory,
                                     reinterpret_cast<void**>(factory.GetAddressOf())),
            S_OK);
  EXPECT_EQ(component.CanUnloadNow(), S_FALSE);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  factory.Reset();
  EXPECT_EQ(component.CanUnloadNow(), S_FALSE);
  ASSERT_EQ(component.GetClassObject(CLSID_Email, IID_IClassFactory,
                                     reinterpret_cast<void**>(factory.GetAddressOf())),
            S_OK);
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  factory.Reset();
  EXPECT_EQ(component.CanUnloadNow(), S_OK);

  auto form = component.NewPrintForm();
  Bstr name(L"N");
  ComPtr<_Campos> record;
  EXPECT_EQ(form->AñadirCampo(name.Ref(), &record), S_OK);
  form.Reset();
  EXPECT_EQ(component.CanUnloadNow(), S_FALSE);
  Bstr read;
  EXPECT_EQ(record->get_Campo(read.Out()), S_OK);  // outlives its job
  EXPECT_EQ(read.Text(), L"N");
  record.Reset();
  EXPECT_EQ(component.CanUnloadNow(), S_OK);
}

TEST(Lifetime, FactoriesRefuseAggregationAndOtherClasses) {
  const Component component;
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(component.GetClassObject(CLSID_PrintForm, IID_IClassFactory,
                                     reinterpret_cast<void**>(factory.GetAddressOf())),
            S_OK);
  ScriptedDispatch outer;
  void* object = &outer;
  EXPECT_EQ(factory->CreateInstance(&outer, IID_IUnknown, &object), CLASS_E_NOAGGREGATION);
  EXPECT_EQ(object, nullptr);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID__Email, &object), E_NOINTERFACE);
  EXPECT_EQ(factory->CreateInstance(nullptr, IID__PrintForm, nullptr), E_POINTER);
  EXPECT_EQ(component.GetClassObject(IID__PrintForm, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(component.GetClassObject(CLSID_PrintForm, IID_IDispatch, &object), E_NOINTERFACE);
  factory.Reset();
  EXPECT_EQ(component.CanUnloadNow(), S_OK);
}

TEST(Lifetime, TheIdentityIsOneWhateverInterfaceIsAskedOf) {
  const Component component;
  const auto form = component.NewPrintForm();
  const IID* const faces[] = {&IID_IUnknown,           &IID_IDispatch,
                              &IID__PrintForm,         &IID_ISupportErrorInfo,
                              &IID_IProvideClassInfo2, &IID_IConnectionPointContainer};
  ComPtr<IUnknown> identity;
  ASSERT_EQ(form.As(&identity), S_OK);
  for (const IID* from : faces) {
    ComPtr<IUnknown> face;
    ASSERT_EQ(form->QueryInterface(*from, reinterpret_cast<void**>(face.GetAddressOf())), S_OK);
    for (const IID* to : faces) {
      ComPtr<IUnknown> other, back;
      ASSERT_EQ(face->QueryInterface(*to, reinterpret_cast<void**>(other.GetAddressOf())), S_OK);
      ASSERT_EQ(other.As(&back), S_OK);
      EXPECT_EQ(back, identity);
    }
  }
}

TEST(Lifetime, TheHostMayLetGoOfTheObjectDuringItsOwnAction) {
  const Component component;
  _PrintForm* form = component.NewPrintForm().Detach();
  ScriptedDispatch number;
  bool released = false;
  number.onInvoke = [&](VARIANT& result) {
    if (!released) {
      released = true;
      EXPECT_EQ(form->put_NumeroModelo(Value()), S_OK);  // the print has its own copy
      form->Release();
      EXPECT_EQ(component.CanUnloadNow(), S_FALSE);
    }
    result.vt = VT_I4;
    result.lVal = 4;
    return S_OK;
  };
  ASSERT_EQ(form->put_XMLFileName(Bstr(L"C:\\no hay.xml").Get()), S_OK);
  ASSERT_EQ(form->putref_NumeroModelo(Value(&number)), S_OK);
  EXPECT_EQ(form->ImprimirModelo(), RuntimeResult(50100));
  EXPECT_TRUE(released);
  EXPECT_EQ(number.References(), 1);
  EXPECT_EQ(component.CanUnloadNow(), S_OK);
}

TEST(Lifetime, AnObjectsOwnErrorReachesTheHostOfTheAction) {
  const Component component;
  const auto form = component.NewPrintForm();
  ScriptedDispatch number;
  number.onInvoke = [](VARIANT&) { return RuntimeResult(11); };
  ASSERT_EQ(form->putref_NumeroModelo(Value(&number)), S_OK);
  EXPECT_EQ(form->ImprimirModelo(), RuntimeResult(11));
  number.onInvoke = [&](VARIANT& result) {  // a default property that is always an object again
    result.vt = VT_DISPATCH;
    result.pdispVal = &number;
    number.AddRef();
    return S_OK;
  };
  EXPECT_EQ(form->ImprimirModelo(), RuntimeResult(13));
  EXPECT_EQ(form->put_NumeroModelo(Value()), S_OK);
  EXPECT_EQ(number.References(), 1);
}

TEST(Lifetime, TenThousandObjectsLeaveNoGrowth) {
  const Component component;
  const auto round = [&](int count) {
    for (int i = 0; i < count; ++i) {
      const auto form = component.NewPrintForm();
      Bstr name(L"CAMPO"), longText(std::wstring(500, L'x'));
      Value value(L"un valor de cierta longitud");
      ComPtr<_Campos> field;
      ComPtr<_Tablas> table;
      SHORT type = 3;
      form->put_EmailTexto(longText.Get());
      form->put_NumeroModelo(value);
      form->AsignarCampo(name.Ref(), &value, &field);
      form->AñadirTabla(name.Ref(), &table);
      form->AñadirCampoTabla(name.Ref(), name.Ref(), name.Ref(), &type);
      Call(form.Get(), L"AsignarCampo", {Value(L"OTRO"), Value(1L)});
      Call(form.Get(), L"AsignarCampo");  // an error
    }
    SetErrorInfo(0, nullptr);
  };
  round(1000);
  const SIZE_T before = PrivateBytes();
  round(10000);
  const SIZE_T after = PrivateBytes();
  EXPECT_LE(after, before + 256 * 1024);
  EXPECT_EQ(component.CanUnloadNow(), S_OK);
}

}  // namespace
}  // namespace qm::tests
