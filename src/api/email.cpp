#include "api/email.h"

#include "api/text_collection.h"
#include "mail/profiles.h"

namespace qm::api {

using automation::Export;
using automation::Required;
using automation::TextOf;

HRESULT Email::LeerPerfiles(SHORT* porDefecto, BSTR* perfilPorDefecto, IDispatch** result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    SHORT& position = Required(porDefecto);
    const std::u16string wanted(TextOf(Required(perfilPorDefecto)));
    std::int16_t found = 0;
    const auto names = composition_.WithMail(
        [&](const mail::Environment& environment) { return mail::LeerPerfiles(wanted, found, environment); });
    *result = new TextCollection(names);
    position = found;
  });
}

HRESULT Email::PerfilPorDefecto(BSTR* result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    Export(composition_.WithMail(mail::BuscarPerfilPorDefecto), *result);
  });
}

HRESULT Email::get_Perfil(BSTR* result) noexcept {
  if (message_.perfil.empty()) return PerfilPorDefecto(result);
  return Call([&] { Export(message_.perfil, Required(result)); });
}

HRESULT Email::put_Perfil(BSTR value) noexcept {
  return Call([&] {
    message_.perfil = composition_.WithMail(
        [&](const mail::Environment& environment) { return mail::ElegirPerfil(TextOf(value), environment); });
  });
}

HRESULT Email::Enviar(BSTR* result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    const std::u16string outcome = composition_.WithMail(
        [&](const mail::Environment& environment) { return mail::Enviar(message_, environment); });
    Export(outcome, *result);
  });
}

}  // namespace qm::api
