#pragma once
// The class Email: a message to be sent with one of the user's mail profiles.

#include "api/typelib/QmModImp3.h"
#include "api/typelib/definition.h"
#include "automation/automation_object.h"

namespace qm::api {

class Email final : public automation::AutomationObject<Qm_Modelo_Impresion3::_Email, kEmailFace> {
 public:
  QM_FIELD(BSTR, EmailDestinatario, emailDestinatario_)
  QM_FIELD(BSTR, NombreDestinatario, nombreDestinatario_)
  QM_FIELD(BSTR, CC, cc_)
  QM_FIELD(BSTR, NombreCC, nombreCC_)
  QM_FIELD(BSTR, Tema, tema_)
  QM_FIELD(BSTR, Texto, texto_)
  QM_FIELD(BSTR, ArchivoHTML, archivoHTML_)
  QM_FIELD(BSTR, ArchivosAdjuntos, archivosAdjuntos_)
  QM_FIELD(VARIANT_BOOL, Recibo, recibo_)

  // Profiles and sending are not part of this version: each raises error 445.
  HRESULT STDMETHODCALLTYPE LeerPerfiles(SHORT* porDefecto, BSTR* perfilPorDefecto,
                                         IDispatch** result) noexcept override;
  HRESULT STDMETHODCALLTYPE PerfilPorDefecto(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE get_Perfil(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_Perfil(BSTR value) noexcept override;
  HRESULT STDMETHODCALLTYPE Enviar(BSTR* result) noexcept override;

 private:
  std::u16string emailDestinatario_;
  std::u16string nombreDestinatario_;
  std::u16string cc_;
  std::u16string nombreCC_;
  std::u16string tema_;
  std::u16string texto_;
  std::u16string archivoHTML_;
  std::u16string archivosAdjuntos_;
  bool recibo_ = false;
};

}  // namespace qm::api
