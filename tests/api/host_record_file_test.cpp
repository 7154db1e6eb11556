// Objects that hosts pass for a record file, called by the names of their members.

#include "api/host_record_file.h"

#include <gtest/gtest.h>

#include "runtime/error.h"
#include "tests/api/component.h"
#include "tests/api/host_object.h"
#include "tests/error_of.h"

namespace qm::tests {
namespace {

using api::HostRecordFile;
using runtime::RuntimeError;

TEST(HostRecordFile, NothingIsError91AndAnObjectWithoutAutomationError13) {
  EXPECT_EQ(ErrorOf([] { HostRecordFile records(nullptr); }), 91);
  const Component component;
  ComPtr<IClassFactory> factory;
  ASSERT_EQ(component.GetClassObject(CLSID_PrintForm, IID_IClassFactory,
                                     reinterpret_cast<void**>(factory.GetAddressOf())),
            S_OK);
  EXPECT_EQ(ErrorOf([&] { HostRecordFile records(factory.Get()); }), 13);
}

TEST(HostRecordFile, IsHeldAsLongAsItIsUsed) {
  HostObject object;
  {
    HostRecordFile records(&object);
    EXPECT_EQ(object.References(), 2);
  }
  EXPECT_EQ(object.References(), 1);
}

TEST(HostRecordFile, TakesTheNumberOfAFieldByReferenceAndLeavesOnesOwnAlone) {
  HostObject object;
  const auto answer = [](const HostObject::Call& call) {
    EXPECT_EQ(call.passed.cArgs, 1U);
    EXPECT_EQ(call.passed.rgvarg[0].vt, VT_BYREF | VT_I2);
    call.result->vt = VT_I2;
    call.result->iVal = static_cast<SHORT>(call.Field() * 10);
    call.Field() = 99;
    return S_OK;
  };
  for (const wchar_t* name : {L"TipoCampo", L"ValorCampo", L"NombreDelCampo"}) object.Set(name, answer);
  HostRecordFile records(&object);
  EXPECT_EQ(records.TipoCampo(3), 30);
  EXPECT_EQ(records.ValorCampo(4), u"40");
  EXPECT_EQ(records.NombreDelCampo(5), u"50");
  EXPECT_EQ(object.Log(), "TipoCampo 3\nValorCampo 4\nNombreDelCampo 5\n");
}

TEST(HostRecordFile, AScriptsObjectTakesTheNumberInAVariantThatItMayChange) {
  HostObject object;
  object.ofScript = true;
  object.Set(L"ValorCampo", [](const HostObject::Call& call) {
    EXPECT_EQ(call.passed.rgvarg[0].vt, VT_BYREF | VT_VARIANT);
    VARIANT& variable = *call.passed.rgvarg[0].pvarVal;
    EXPECT_EQ(variable.vt, VT_I2);
    EXPECT_EQ(variable.iVal, 7);
    variable.vt = VT_BSTR;
    variable.bstrVal = SysAllocString(L"otra cosa");
    return S_OK;
  });
  HostRecordFile records(&object);
  EXPECT_EQ(records.ValorCampo(7), u"");
  EXPECT_EQ(object.References(), 2);
}

TEST(HostRecordFile, AnswersMayComeInAnyTypeThatConverts) {
  HostObject object;
  HostRecordFile records(&object);
  object.SetValue(L"FinArchivo", Value::Boolean(true));
  EXPECT_TRUE(records.FinArchivo());
  object.SetValue(L"FinArchivo", Value(L"Falso"));
  EXPECT_FALSE(records.FinArchivo());
  object.SetValue(L"FinArchivo", Value());  // a script function without a value
  EXPECT_FALSE(records.FinArchivo());
  object.SetValue(L"NumeroRegistros", Value(L"70000"));
  EXPECT_EQ(records.NumeroRegistros(), 70000);
  object.SetValue(L"NumeroCampos", Value(2.5));
  EXPECT_EQ(records.NumeroCampos(), 2);
  object.SetValue(L"NumeroCampos", Value(40000L));
  EXPECT_EQ(ErrorOf([&] { (void)records.NumeroCampos(); }), 6);
  object.SetValue(L"NombreDeTabla", Value(L"CLIEN"));
  EXPECT_EQ(records.NombreDeTabla(), u"CLIEN");
}

TEST(HostRecordFile, ValuesBecomeTextsInTheUsersLocale) {
  HostObject object;
  HostRecordFile records(&object);
  object.SetValue(L"ValorCampo", Value(1234.5));
  EXPECT_EQ(records.ValorCampo(1), u"1234,5");
  object.SetValue(L"ValorCampo", Value::Boolean(true));
  EXPECT_EQ(records.ValorCampo(1), u"Verdadero");
  object.SetValue(L"ValorCampo", Value::Date(42369));
  EXPECT_EQ(records.ValorCampo(1), u"31/12/2015");
  object.SetValue(L"ValorCampo", Value());
  EXPECT_EQ(records.ValorCampo(1), u"");
  object.SetValue(L"ValorCampo", Value::Null());
  EXPECT_EQ(ErrorOf([&] { (void)records.ValorCampo(1); }), 94);
}

TEST(HostRecordFile, AMissingMemberIsError438WhenItIsNeeded) {
  HostObject object;
  HostRecordFile records(&object);
  EXPECT_EQ(ErrorOf([&] { records.Siguiente(); }), 438);
  object.Set(L"Siguiente", [](const HostObject::Call& call) {
    EXPECT_EQ(call.result, nullptr);
    EXPECT_EQ(call.flags, DISPATCH_METHOD);
    return S_OK;
  });
  records.Siguiente();
  EXPECT_EQ(object.Log(), "Siguiente\n");
}

TEST(HostRecordFile, AMemberIsLookedUpOnce) {
  HostObject object;
  object.SetValue(L"FinArchivo", Value::Boolean(false));
  HostRecordFile records(&object);
  for (int i = 0; i < 5; ++i) (void)records.FinArchivo();
  EXPECT_EQ(object.NamesAsked(), 1);
}

TEST(HostRecordFile, WhatTheObjectRaisesKeepsItsNumberAndText) {
  struct Row {
    const char* why;
    HRESULT raised;
    const wchar_t* text;
    int number;
    std::u16string_view description;
  };
  const Row rows[] = {
      {"a runtime's error", RuntimeResult(62), L"más allá", 62, u"más allá"},
      {"without a text", RuntimeResult(76), nullptr, 76, u"Ruta de acceso no encontrada"},
      {"the host's own", static_cast<HRESULT>(0x80040201), L"bloqueado", static_cast<int>(0x80040201),
       u"bloqueado"},
      {"the system's", E_FAIL, nullptr, static_cast<int>(E_FAIL), u"Error de automatización"}};
  for (const Row& row : rows) {
    HostObject object;
    object.Set(L"Siguiente", [&](const HostObject::Call& call) {
      call.exception->scode = row.raised;
      call.exception->bstrDescription = SysAllocString(row.text);
      return DISP_E_EXCEPTION;
    });
    HostRecordFile records(&object);
    try {
      records.Siguiente();
      ADD_FAILURE() << row.why;
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), row.number) << row.why;
      EXPECT_EQ(error.description(), row.description) << row.why;
    }
  }
}

TEST(HostRecordFile, AFailingResultGoesOnAsItIs) {
  HostObject object;
  object.Set(L"Siguiente", [](const HostObject::Call&) { return RPC_E_DISCONNECTED; });
  HostRecordFile records(&object);
  EXPECT_EQ(ErrorOf([&] { records.Siguiente(); }), static_cast<int>(RPC_E_DISCONNECTED));
}

}  // namespace
}  // namespace qm::tests
