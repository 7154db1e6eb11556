#pragma once
// A C++ host's side of the component: one print job object and what a host does with it. Texts are UTF-16;
// HRESULTs are passed on as they come, 0x800A0000 + number for the component's own errors.

#include <windows.h>

#include <oleauto.h>

#include <string>
#include <string_view>
#include <utility>

#include "api/typelib/QmModImp3.h"

namespace hosts {

inline constexpr HRESULT ErrorResult(int number) {
  return static_cast<HRESULT>(0x800A0000u + static_cast<unsigned>(number));
}

class Bstr {
 public:
  explicit Bstr(std::wstring_view text)
      : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { SysFreeString(text_); }
  operator BSTR() const { return text_; }
  BSTR* Place() { return &text_; }

 private:
  BSTR text_;
};

class PrintHost {
 public:
  PrintHost() {
    (void)CoCreateInstance(Qm_Modelo_Impresion3::CLSID_PrintForm, nullptr, CLSCTX_INPROC_SERVER,
                           Qm_Modelo_Impresion3::IID__PrintForm, reinterpret_cast<void**>(&form_));
  }
  PrintHost(const std::wstring& models, LONG number) : PrintHost() {
    if (!form_) return;
    form_->put_XMLFileName(Bstr(models));
    UseModel(number);
  }
  PrintHost(PrintHost&& other) noexcept : form_(std::exchange(other.form_, nullptr)) {}
  PrintHost& operator=(PrintHost&&) = delete;
  ~PrintHost() { Release(); }

  [[nodiscard]] bool Created() const { return form_ != nullptr; }

  void UseModel(LONG number) {
    VARIANT value{};
    value.vt = VT_I4;
    value.lVal = number;
    form_->put_NumeroModelo(value);
  }

  void Field(std::wstring_view name, std::wstring_view text) {
    Bstr nombre(name);
    const Bstr valor(text);
    VARIANT value{};
    value.vt = VT_BSTR;
    value.bstrVal = valor;
    Qm_Modelo_Impresion3::_Campos* added = nullptr;
    form_->AsignarCampo(nombre.Place(), &value, &added);
    if (added) added->Release();
  }

  void Cell(std::wstring_view table, std::wstring_view field, std::wstring_view text, SHORT kind) {
    Bstr tabla(table), campo(field), valor(text);
    form_->AñadirCampoTabla(tabla.Place(), campo.Place(), valor.Place(), &kind);
  }

  // The object may release itself meanwhile: the pointer is read once.
  [[nodiscard]] HRESULT Print() { return form_ ? form_->ImprimirModelo() : E_POINTER; }

  [[nodiscard]] bool Cancelled() const {
    VARIANT_BOOL cancelled = VARIANT_FALSE;
    form_->get_ImpresionAnulada(&cancelled);
    return cancelled != VARIANT_FALSE;
  }
  void ForgetCancelling() { form_->put_ImpresionAnulada(VARIANT_FALSE); }

  void Release() {
    if (auto* const form = std::exchange(form_, nullptr)) form->Release();
  }

 private:
  Qm_Modelo_Impresion3::_PrintForm* form_ = nullptr;
};

}  // namespace hosts
