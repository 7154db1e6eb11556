#include "api/email.h"

namespace qm::api {

using automation::Required;
using automation::ThrowNotSupported;

HRESULT Email::LeerPerfiles(SHORT* porDefecto, BSTR* perfilPorDefecto, IDispatch** result) noexcept {
  return Call([&] {
    Required(porDefecto);
    Required(perfilPorDefecto);
    Required(result) = nullptr;
    ThrowNotSupported();
  });
}

HRESULT Email::PerfilPorDefecto(BSTR* result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    ThrowNotSupported();
  });
}

HRESULT Email::get_Perfil(BSTR* result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    ThrowNotSupported();
  });
}

HRESULT Email::put_Perfil(BSTR) noexcept {
  return Call([] { ThrowNotSupported(); });
}

HRESULT Email::Enviar(BSTR* result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    ThrowNotSupported();
  });
}

}  // namespace qm::api
