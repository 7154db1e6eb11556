#pragma once
// The class Email: a message to be sent with one of the user's mail profiles.

#include "api/composition.h"
#include "api/typelib/QmModImp3.h"
#include "api/typelib/definition.h"
#include "automation/automation_object.h"
#include "mail/email_message.h"

namespace qm::api {

class Email final : public automation::AutomationObject<Qm_Modelo_Impresion3::_Email, kEmailFace> {
 public:
  explicit Email(Composition& composition) : composition_(composition) {}

  QM_FIELD(BSTR, EmailDestinatario, message_.emailDestinatario)
  QM_FIELD(BSTR, NombreDestinatario, message_.nombreDestinatario)
  QM_FIELD(BSTR, CC, message_.cc)
  QM_FIELD(BSTR, NombreCC, message_.nombreCC)
  QM_FIELD(BSTR, Tema, message_.tema)
  QM_FIELD(BSTR, Texto, message_.texto)
  QM_FIELD(BSTR, ArchivoHTML, message_.archivoHTML)
  QM_FIELD(BSTR, ArchivosAdjuntos, message_.archivosAdjuntos)
  QM_FIELD(VARIANT_BOOL, Recibo, message_.recibo)

  HRESULT STDMETHODCALLTYPE LeerPerfiles(SHORT* porDefecto, BSTR* perfilPorDefecto,
                                         IDispatch** result) noexcept override;
  HRESULT STDMETHODCALLTYPE PerfilPorDefecto(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Perfil(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Perfil(BSTR value) noexcept override;
  HRESULT STDMETHODCALLTYPE Enviar(BSTR* result) noexcept override;

 private:
  Composition& composition_;
  mail::EmailMessage message_;
};

}  // namespace qm::api
