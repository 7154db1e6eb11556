// recibo.cpp: a C++ host, early bound. Prints the example receipt on its own printer.
// Usage: recibo MODELOS.xml
#include <windows.h>

#include <oleauto.h>

#include <cstdio>

#include "api/typelib/QmModImp3.h"

using namespace Qm_Modelo_Impresion3;

namespace {

class Text {
 public:
  explicit Text(const wchar_t* text) : text_(SysAllocString(text)) {}
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;
  ~Text() { SysFreeString(text_); }
  operator BSTR() const { return text_; }
  BSTR* operator&() { return &text_; }

 private:
  BSTR text_;
};

void Cell(_PrintForm& form, const wchar_t* table, const wchar_t* field, const wchar_t* value, SHORT type) {
  Text tabla(table);
  Text campo(field);
  Text valor(value);
  form.AñadirCampoTabla(&tabla, &campo, &valor, &type);
}

void Field(_PrintForm& form, const wchar_t* name, const wchar_t* value) {
  Text campo(name);
  VARIANT valor{};
  valor.vt = VT_BSTR;
  valor.bstrVal = SysAllocString(value);
  _Campos* added = nullptr;
  form.AsignarCampo(&campo, &valor, &added);
  if (added) added->Release();
  VariantClear(&valor);
}

// Prints, and tells the user what the component says when it fails.
int Print(_PrintForm& form) {
  const HRESULT result = form.ImprimirModelo();
  if (SUCCEEDED(result)) {
    VARIANT_BOOL cancelled = VARIANT_FALSE;
    form.get_ImpresionAnulada(&cancelled);
    std::puts(cancelled ? "Impresión anulada" : "Recibo impreso");
    return cancelled ? 2 : 0;
  }
  IErrorInfo* information = nullptr;
  BSTR description = nullptr;
  if (GetErrorInfo(0, &information) == S_OK) {
    information->GetDescription(&description);
    information->Release();
  }
  std::printf("Error %d: %ls\n", static_cast<int>(HRESULT_CODE(result)), description ? description : L"");
  SysFreeString(description);
  return 1;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count != 2) return std::puts("uso: recibo MODELOS.xml"), 1;
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  _PrintForm* form = nullptr;
  const HRESULT created = CoCreateInstance(CLSID_PrintForm, nullptr, CLSCTX_INPROC_SERVER, IID__PrintForm,
                                           reinterpret_cast<void**>(&form));
  if (FAILED(created)) return std::printf("Error 0x%08lX\n", static_cast<unsigned long>(created)), 1;

  VARIANT number{};
  number.vt = VT_I4;
  number.lVal = 2;
  form->put_XMLFileName(Text(arguments[1]));
  form->put_NumeroModelo(number);
  Field(*form, L"Numero", L"Recibo 7/2015");
  Field(*form, L"Observaciones", L"Señal del pedido 311, a cuenta de la factura 2015/0042");
  Cell(*form, L"CLIEN", L"NOMBRE (CLIEN)", L"Muñoz & Íñiguez, Construcciones", 0);
  Cell(*form, L"FACTU", L"TOTAL (FACTU)", L"500", 3);
  Cell(*form, L"FACTU", L"FECHA (FACTU)", L"151231", 5);
  const int result = Print(*form);

  form->Release();
  CoUninitialize();
  return result;
}
