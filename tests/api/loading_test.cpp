// Bulk loading through the component. What was loaded shows in print only, which the hosts of tests/wine do;
// here stand the order of calls, the files and the errors.

#include <windows.h>

#include <gtest/gtest.h>
#include <psapi.h>

#include "tests/api/component.h"
#include "tests/api/record_object.h"
#include "tests/api/safe_array.h"

namespace qm::tests {
namespace {

constexpr const char* kRecordCalls =
    "TipoCampo 1\nNombreDeTabla\nNombreDelCampo 1\nNombreDeTabla\nValorCampo 1\nTipoCampo 1\n"
    "TipoCampo 2\nNombreDeTabla\nNombreDelCampo 2\nNombreDeTabla\nValorCampo 2\nTipoCampo 2\n";

class Loading : public testing::Test {
 protected:
  HRESULT LoadOne(IDispatch* object) {
    auto* records = reinterpret_cast<_QmFileControl2*>(object);  // any object, as a host may pass it
    return form_->AsignarDatosTablaQmF(&records);
  }
  HRESULT LoadAll(IDispatch* object) {
    auto* records = reinterpret_cast<_QmFileControl2*>(object);
    return form_->AsignarDatosTablaQmF2(&records);
  }

  Component component_;
  ComPtr<_PrintForm> form_ = component_.NewPrintForm();
};

TEST_F(Loading, OneRecordAsksTheObjectInOrderThroughEitherBinding) {
  RecordObject first, second;
  EXPECT_EQ(LoadOne(&first), S_OK);
  EXPECT_EQ(first.Log(), std::string("NumeroCampos\n") + kRecordCalls);
  EXPECT_EQ(Call(form_.Get(), L"AsignarDatosTablaQmF", {Value(&second)}).result, S_OK);
  EXPECT_EQ(second.Log(), first.Log());
  EXPECT_EQ(first.References(), 1);
  EXPECT_EQ(second.References(), 1);
}

TEST_F(Loading, AllRecordsAskTheObjectInOrderAndLeaveItAtItsEnd) {
  RecordObject records;
  EXPECT_EQ(LoadAll(&records), S_OK);
  const std::string one = std::string("FinArchivo\nNumeroCampos\n") + kRecordCalls + "Siguiente\n";
  EXPECT_EQ(records.Log(), "NumeroRegistros\n" + one + one + "FinArchivo\n");
  EXPECT_EQ(records.position, 2);
  EXPECT_EQ(records.References(), 1);
}

TEST_F(Loading, AScriptsVariableAndAReferenceToAnObjectServeToo) {
  RecordObject records;
  Value variable(&records);
  EXPECT_EQ(Call(form_.Get(), L"AsignarDatosTablaQmF2", {Value::VariableOf(variable)}).result, S_OK);
  EXPECT_EQ(records.position, 2);
  IDispatch* object = &records;
  Value reference;
  reference.vt = VT_BYREF | VT_DISPATCH;
  reference.ppdispVal = &object;
  EXPECT_EQ(Call(form_.Get(), L"AsignarDatosTablaQmF", {reference}).result, S_OK);
}

TEST_F(Loading, NothingIsError91) {
  EXPECT_EQ(LoadOne(nullptr), RuntimeResult(91));
  EXPECT_EQ(LoadAll(nullptr), RuntimeResult(91));
  EXPECT_EQ(form_->AsignarDatosTablaQmF(nullptr), RuntimeResult(5));
  EXPECT_EQ(form_->AsignarDatosTablaQmF2(nullptr), RuntimeResult(5));
  EXPECT_EQ(Call(form_.Get(), L"AsignarDatosTablaQmF2", {Value()}).error, RuntimeResult(91));
}

TEST_F(Loading, AnObjectsErrorReachesTheHostAsItWasRaised) {
  RecordObject records;
  records.Set(L"Siguiente", [](const HostObject::Call& call) {
    call.exception->scode = static_cast<HRESULT>(0x80040201);
    call.exception->bstrDescription = SysAllocString(L"registro bloqueado");
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(LoadAll(&records), static_cast<HRESULT>(0x80040201));
  EXPECT_EQ(TakeError().description, L"registro bloqueado");
  const Outcome failed = Call(form_.Get(), L"AsignarDatosTablaQmF2", {Value(&records)});
  EXPECT_EQ(failed.error, static_cast<HRESULT>(0x80040201));
  EXPECT_EQ(failed.description, L"registro bloqueado");
}

TEST_F(Loading, MoreRecordsThanCountedIsError9) {
  RecordObject records;
  records.count = 0;
  EXPECT_EQ(LoadAll(&records), RuntimeResult(9));
  EXPECT_EQ(records.position, 1);
}

TEST_F(Loading, TheHostMayLetGoOfEverythingWhileItsObjectIsAsked) {
  RecordObject records;
  _PrintForm* form = form_.Detach();
  _QmFileControl2* variable = reinterpret_cast<_QmFileControl2*>(static_cast<IDispatch*>(&records));
  records.AddRef();
  records.Set(L"NombreDeTabla", [&](const HostObject::Call& call) {
    if (variable) {
      variable = nullptr;
      records.Release();
      form->Release();
    }
    return RecordObject::Give(call, Value(L"CLIEN"));
  });
  EXPECT_EQ(form->AsignarDatosTablaQmF2(&variable), S_OK);
  EXPECT_EQ(records.position, 2);
  EXPECT_EQ(records.References(), 1);
  EXPECT_EQ(component_.CanUnloadNow(), S_OK);
}

TEST_F(Loading, TheHostMayLoadAgainWhileItsObjectIsAsked) {
  RecordObject records, within;
  within.count = 5;
  bool once = true;
  records.Set(L"ValorCampo", [&](const HostObject::Call& call) {
    if (std::exchange(once, false)) {
      EXPECT_EQ(LoadAll(&within), S_OK);
    }
    return RecordObject::Give(call, Value(L"valor"));
  });
  EXPECT_EQ(LoadAll(&records), S_OK);
}

SIZE_T PrivateBytes() {
  PROCESS_MEMORY_COUNTERS_EX counters{};
  GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                       sizeof counters);
  return counters.PrivateUsage;
}

TEST_F(Loading, ManyTimesOverLeavesNoGrowth) {
  RecordObject records;
  const auto round = [&](int count) {
    for (int i = 0; i < count; ++i) {
      const auto form = component_.NewPrintForm();
      auto* object = reinterpret_cast<_QmFileControl2*>(static_cast<IDispatch*>(&records));
      records.position = 0;
      EXPECT_EQ(form->AsignarDatosTablaQmF(&object), S_OK);
      EXPECT_EQ(form->AsignarDatosTablaQmF2(&object), S_OK);
      records.count = 0;  // an error now and then
      records.position = 0;
      EXPECT_EQ(form->AsignarDatosTablaQmF2(&object), RuntimeResult(9));
      records.count = 2;
      records.ClearLog();
    }
    SetErrorInfo(0, nullptr);
  };
  round(300);
  const SIZE_T before = PrivateBytes();
  round(3000);
  EXPECT_LE(PrivateBytes(), before + 256 * 1024);
  EXPECT_EQ(records.References(), 1);
}

TEST_F(Loading, FromArraysMakesAMissingDefinitionAndLooksAtNothing) {
  wchar_t folder[MAX_PATH];
  GetTempPathW(MAX_PATH, folder);
  const std::wstring table = std::wstring(folder) + L"QMLOAD", file = table + L".Qma";
  DeleteFileW(file.c_str());
  Bstr name(table);
  SHORT number = 1;
  SAFEARRAY* none = nullptr;
  EXPECT_EQ(form_->AsignarDatosTabla(name.Ref(), &number, &none, &none), S_OK);
  WIN32_FILE_ATTRIBUTE_DATA found{};
  EXPECT_TRUE(GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &found));
  EXPECT_EQ(found.nFileSizeLow, 0U);
  DeleteFileW(file.c_str());

  Bstr lost(std::wstring(folder) + L"no hay\\CLIEN");
  EXPECT_EQ(form_->AsignarDatosTabla(lost.Ref(), &number, &none, &none), RuntimeResult(76));
  EXPECT_EQ(form_->AsignarDatosTabla(name.Ref(), nullptr, &none, &none), RuntimeResult(5));
  EXPECT_EQ(form_->AsignarDatosTabla(name.Ref(), &number, nullptr, &none), RuntimeResult(5));
}

}  // namespace
}  // namespace qm::tests
