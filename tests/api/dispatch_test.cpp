// Late-bound calls, as script hosts make them.

#include <gtest/gtest.h>

#include "tests/api/component.h"

namespace qm::tests {
namespace {

class LateBound : public testing::Test {
 protected:
  DISPID IdOf(const wchar_t* name) {
    DISPID id = 0;
    auto* asked = const_cast<LPOLESTR>(name);
    const HRESULT found = form_->GetIDsOfNames(IID_NULL, &asked, 1, 0, &id);
    EXPECT_EQ(found, id == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK);
    return id;
  }
  std::wstring FieldOf(const Outcome& outcome, const wchar_t* name) {
    return outcome.value.vt == VT_DISPATCH && outcome.value.pdispVal
               ? Get(outcome.value.pdispVal, name).value.Text()
               : L"no record";
  }

  Component component_;
  ComPtr<_PrintForm> form_ = component_.NewPrintForm();
};

TEST_F(LateBound, NamesAreFoundInAnyCase) {
  EXPECT_EQ(IdOf(L"NumeroModelo"), 0x40030006);
  EXPECT_EQ(IdOf(L"NUMEROMODELO"), 0x40030006);
  EXPECT_EQ(IdOf(L"AÑADIRCAMPO"), 0x6003000F);
  EXPECT_EQ(IdOf(L"añadircampo"), 0x6003000F);
  EXPECT_EQ(IdOf(L"AsignarDatosTablaQmF2"), 0x60030017);
  EXPECT_EQ(IdOf(L"NoExiste"), DISPID_UNKNOWN);
  LPOLESTR names[] = {const_cast<LPOLESTR>(L"AsignarCampo"), const_cast<LPOLESTR>(L"valor"),
                      const_cast<LPOLESTR>(L"nombrecampo"), const_cast<LPOLESTR>(L"otro")};
  DISPID ids[4] = {};
  EXPECT_EQ(form_->GetIDsOfNames(IID_NULL, names, 3, 0, ids), S_OK);
  EXPECT_EQ(ids[1], 1);
  EXPECT_EQ(ids[2], 0);
  EXPECT_EQ(form_->GetIDsOfNames(IID_NULL, names, 4, 0, ids), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ids[3], DISPID_UNKNOWN);
  EXPECT_EQ(form_->GetIDsOfNames(IID_IDispatch, names, 1, 0, ids), DISP_E_UNKNOWNINTERFACE);
}

TEST_F(LateBound, FieldsAreReadAndWritten) {
  EXPECT_EQ(Put(form_.Get(), L"eDir", Value(L"C:\\x")).result, S_OK);
  EXPECT_EQ(Get(form_.Get(), L"eDir").value.Text(), L"C:\\x");
  EXPECT_EQ(Put(form_.Get(), L"SMTPPort", Value(L"587")).result, S_OK);
  EXPECT_EQ(Get(form_.Get(), L"SMTPPort").value.vt, VT_I4);
  EXPECT_EQ(Get(form_.Get(), L"SMTPPort").value.lVal, 587);
  EXPECT_EQ(Put(form_.Get(), L"SSL", Value(1L)).result, S_OK);
  EXPECT_EQ(Get(form_.Get(), L"SSL").value.vt, VT_BOOL);
  EXPECT_EQ(Get(form_.Get(), L"SSL").value.boolVal, VARIANT_TRUE);
  EXPECT_EQ(Put(form_.Get(), L"NumeroModelo", Value(2.0)).result, S_OK);
  EXPECT_EQ(Get(form_.Get(), L"NumeroModelo").value.dblVal, 2.0);
  EXPECT_EQ(Put(form_.Get(), L"NumeroModelo", Value(form_.Get()), DISPATCH_PROPERTYPUTREF).result, S_OK);
  EXPECT_EQ(Get(form_.Get(), L"NumeroModelo").value.vt, VT_DISPATCH);
  EXPECT_EQ(Put(form_.Get(), L"NumeroModelo", Value(), DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF).result,
            S_OK);
  EXPECT_EQ(Get(form_.Get(), L"NumeroModelo").value.vt, VT_EMPTY);
  EXPECT_EQ(Put(form_.Get(), L"XMLFileName", Value(L"C:\\m\\a.xml")).result, S_OK);
  EXPECT_EQ(Invoke(form_.Get(), L"XMLFileName", DISPATCH_METHOD | DISPATCH_PROPERTYGET).value.Text(),
            L"C:\\m\\a.xml");
}

TEST_F(LateBound, AValueWithoutAPutReferenceAccessorIsNotSet) {
  EXPECT_EQ(Put(form_.Get(), L"eDir", Value(L"x"), DISPATCH_PROPERTYPUTREF).result, DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(Get(form_.Get(), L"Show").result, DISP_E_MEMBERNOTFOUND);
}

TEST_F(LateBound, MethodsReturnTheirRecords) {
  const Outcome added = Call(form_.Get(), L"AsignarCampo", {Value(L"TOTAL"), Value(10L)});
  EXPECT_EQ(added.result, S_OK);
  EXPECT_EQ(FieldOf(added, L"Campo"), L"TOTAL");
  EXPECT_EQ(FieldOf(added, L"Valor"), L"10");
  const Outcome changed = Call(form_.Get(), L"AsignarCampo", {Value(L"TOTAL"), Value(20L)});
  EXPECT_EQ(changed.result, S_OK);
  EXPECT_EQ(changed.value.vt, VT_DISPATCH);
  EXPECT_EQ(changed.value.pdispVal, nullptr);
  EXPECT_EQ(FieldOf(added, L"Valor"), L"20");
  EXPECT_EQ(FieldOf(Call(form_.Get(), L"AñadirTabla", {Value(L"FACTU")}), L"Tabla"), L"FACTU");
  EXPECT_EQ(Call(form_.Get(), L"AñadirCampoTabla", {Value(L"T"), Value(L"C"), Value(1.5), Value(3L)}).result,
            S_OK);
}

TEST_F(LateBound, VariablesOfScriptsAreTakenWhateverTheyHold) {
  Value name(L"IMPORTE"), number(7L), kind(3L), empty;
  EXPECT_EQ(FieldOf(Call(form_.Get(), L"AsignarCampo", {Value::VariableOf(name), Value::VariableOf(number)}),
                    L"Valor"),
            L"7");
  EXPECT_EQ(FieldOf(Call(form_.Get(), L"AñadirCampo", {Value::VariableOf(number)}), L"Campo"), L"7");
  EXPECT_EQ(FieldOf(Call(form_.Get(), L"AñadirCampo", {Value::VariableOf(empty)}), L"Campo"), L"");
  EXPECT_EQ(Call(form_.Get(), L"AñadirCampoTabla",
                 {Value::VariableOf(name), Value::VariableOf(name), Value::VariableOf(number),
                  Value::VariableOf(kind)})
                .result,
            S_OK);
  EXPECT_EQ(number.vt, VT_I4);  // what the method did not change stays as it was
  EXPECT_EQ(name.Text(), L"IMPORTE");
  Bstr text(L"REF");
  Value reference;
  reference.vt = VT_BYREF | VT_BSTR;
  reference.pbstrVal = text.Ref();
  EXPECT_EQ(FieldOf(Call(form_.Get(), L"AñadirCampo", {reference}), L"Campo"), L"REF");
  reference.vt = VT_EMPTY;
}

TEST_F(LateBound, NamedArgumentsComeInAnyOrder) {
  Value value(5L), name(L"CON NOMBRE");
  VARIANTARG passed[] = {value, name};
  DISPID names[] = {1, 0};
  DISPPARAMS parameters{passed, names, 2, 2};
  Outcome outcome;
  EXPECT_EQ(
      form_->Invoke(0x6003000E, IID_NULL, 0, DISPATCH_METHOD, &parameters, &outcome.value, nullptr, nullptr),
      S_OK);
  EXPECT_EQ(FieldOf(outcome, L"Campo"), L"CON NOMBRE");
  EXPECT_EQ(FieldOf(outcome, L"Valor"), L"5");
  for (const DISPID id : {1, 7}) {  // twice the same, none of that number
    names[1] = id;
    EXCEPINFO exception{};
    EXPECT_EQ(
        form_->Invoke(0x6003000E, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, &exception, nullptr),
        DISP_E_EXCEPTION);
    EXPECT_EQ(exception.scode, RuntimeResult(448));
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrSource);
  }
}

TEST_F(LateBound, WrongCountsOfArgumentsAreErrors) {
  EXPECT_EQ(Call(form_.Get(), L"AsignarCampo").error, RuntimeResult(449));
  EXPECT_EQ(Call(form_.Get(), L"AsignarCampo", {Value(L"X")}).error, RuntimeResult(449));
  EXPECT_EQ(Call(form_.Get(), L"AsignarCampo", {Value(L"X"), Value(1L), Value(2L)}).error,
            RuntimeResult(450));
  EXPECT_EQ(Call(form_.Get(), L"AsignarCampo", {Value(L"X"), Value::Missing()}).error, RuntimeResult(449));
  EXPECT_EQ(Call(form_.Get(), L"AsignarCampo", {Value::Missing(), Value(1L)}).wrongArgument, 1u);
  EXPECT_EQ(Call(form_.Get(), L"ImprimirModelo", {Value(1L)}).error, RuntimeResult(450));
  EXPECT_EQ(Invoke(form_.Get(), L"eDir", DISPATCH_PROPERTYPUT).error, RuntimeResult(450));
  EXPECT_EQ(Invoke(form_.Get(), L"eDir", DISPATCH_PROPERTYGET, {Value(1L)}).error, RuntimeResult(450));
  EXPECT_EQ(form_->Invoke(0x6003000E, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
            E_INVALIDARG);
  EXPECT_EQ(form_->Invoke(0x12345678, IID_NULL, 0, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
            E_INVALIDARG);
  DISPPARAMS none{};
  EXPECT_EQ(form_->Invoke(0x12345678, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
            DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(form_->Invoke(0x60030015, IID_IDispatch, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
            DISP_E_UNKNOWNINTERFACE);
}

TEST_F(LateBound, WrongTypesAreErrors) {
  const Outcome wrong =
      Call(form_.Get(), L"AñadirCampoTabla", {Value(L"T"), Value(L"C"), Value(L"V"), Value(L"tres")});
  EXPECT_EQ(wrong.error, RuntimeResult(13));
  EXPECT_EQ(wrong.wrongArgument, 0u);
  EXPECT_EQ(
      Call(form_.Get(), L"AñadirCampoTabla", {Value(L"T"), Value(L"C"), Value(L"V"), Value(40000L)}).error,
      RuntimeResult(6));
  EXPECT_EQ(Put(form_.Get(), L"SMTPPort", Value(L"puerto")).error, RuntimeResult(13));
  EXPECT_EQ(Put(form_.Get(), L"SMTPPort", Value(3e9)).error, RuntimeResult(6));
  const Outcome null = Put(form_.Get(), L"eDir", Value::Null());
  EXPECT_EQ(null.result, DISP_E_EXCEPTION);
  EXPECT_EQ(null.error, RuntimeResult(94));
  EXPECT_EQ(Call(form_.Get(), L"AsignarDatosTablaQmF", {Value(L"no object")}).error, RuntimeResult(13));
  EXPECT_EQ(Call(form_.Get(), L"AsignarDatosTablaQmF", {Value(form_.Get())}).error, RuntimeResult(438));
  EXPECT_EQ(Call(form_.Get(), L"AsignarDatosTabla", {Value(L"T"), Value(1L), Value(L"x"), Value(L"y")}).error,
            RuntimeResult(13));
}

TEST_F(LateBound, ErrorsReachTheHostWithNumberTextAndSource) {
  EXPECT_EQ(Put(form_.Get(), L"XMLFileName", Value(L"")).result, S_OK);
  const Outcome failed = Call(form_.Get(), L"ImprimirModelo");
  EXPECT_EQ(failed.result, DISP_E_EXCEPTION);
  EXPECT_EQ(failed.error, RuntimeResult(50101));
  EXPECT_EQ(failed.description, L"Debe asignar un nombre de archivo a XMLFileName");
  EXPECT_EQ(failed.source, L"Qm_Modelo_Impresion3");
  EXPECT_EQ(Call(form_.Get(), L"AsignarDatosTablaQmF", {Value(static_cast<IDispatch*>(nullptr))}).error,
            RuntimeResult(91));
}

TEST_F(LateBound, TheOptionalProfileMayBeMissing) {
  const auto email = component_.Create<_Email>(CLSID_Email, IID__Email);
  EXPECT_EQ(Call(email.Get(), L"LeerPerfiles", {Value(0L)}).value.vt, VT_DISPATCH);
  EXPECT_EQ(Call(email.Get(), L"LeerPerfiles", {Value(0L), Value::Missing()}).value.vt, VT_DISPATCH);
  EXPECT_EQ(Call(email.Get(), L"LeerPerfiles", {Value(0L), Value(L"Ventas")}).value.vt, VT_DISPATCH);
  EXPECT_EQ(Call(email.Get(), L"LeerPerfiles").error, RuntimeResult(449));
}

}  // namespace
}  // namespace qm::tests
