#pragma once
// The class PrintForm: a print job of the host. It holds the job's state and hands each action to the part of
// the component that does it.

#include "api/composition.h"
#include "api/typelib/QmModImp3.h"
#include "api/typelib/definition.h"
#include "automation/automation_object.h"
#include "automation/connection_point.h"
#include "automation/variants.h"
#include "data/print_job.h"
#include "mail/attachments.h"

namespace qm::api {

class PrintForm final
    : public automation::AutomationObject<Qm_Modelo_Impresion3::_PrintForm, kPrintFormFace> {
 public:
  explicit PrintForm(Composition& composition);

  HRESULT STDMETHODCALLTYPE get_NumeroModelo(VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE put_NumeroModelo(VARIANT value) noexcept override;
  HRESULT STDMETHODCALLTYPE putref_NumeroModelo(VARIANT value) noexcept override;

  QM_FIELD(BSTR, eDir, eDir_)
  QM_FIELD(LONG, Error, error_)
  QM_FIELD(BSTR, ErrDescription, errDescription_)
  QM_FIELD(VARIANT_BOOL, ImpresionAnulada, impresionAnulada_)
  QM_FIELD(BSTR, Attachments, job_.mail.attachments)
  QM_FIELD(BSTR, HtmDir, job_.mail.htmDir)
  QM_FIELD(BSTR, RutaEmail, job_.mail.rutaEmail)
  QM_FIELD(BSTR, Email, job_.mail.email)
  QM_FIELD(BSTR, EmailCC, job_.mail.emailCC)
  QM_FIELD(BSTR, DesCC, job_.mail.desCC)
  QM_FIELD(BSTR, NombreDestinatario, job_.mail.nombreDestinatario)
  QM_FIELD(BSTR, EmailTexto, job_.mail.emailTexto)
  QM_FIELD(BSTR, EmailTema, job_.mail.emailTema)
  QM_FIELD(BSTR, SMTPHost, job_.mail.smtpHost)
  QM_FIELD(LONG, SMTPPort, job_.mail.smtpPort)
  QM_FIELD(VARIANT_BOOL, SSL, job_.mail.ssl)
  QM_FIELD(BSTR, From, job_.mail.from)
  QM_FIELD(BSTR, FromDisplayName, job_.mail.fromDisplayName)
  QM_FIELD(BSTR, UserName, job_.mail.userName)
  QM_FIELD(BSTR, Password, job_.mail.password)
  QM_FIELD(VARIANT_BOOL, UseAuthentication, job_.mail.useAuthentication)
  QM_FIELD(VARIANT_BOOL, UsePopAuthentication, job_.mail.usePopAuthentication)
  QM_FIELD(BSTR, PoP3Host, job_.mail.pop3Host)
  QM_FIELD(VARIANT_BOOL, Receipt, job_.mail.receipt)

  HRESULT STDMETHODCALLTYPE AñadirCampoTabla(BSTR* tabla, BSTR* campo, BSTR* valor,
                                             SHORT* tipo) noexcept override;
  HRESULT STDMETHODCALLTYPE EmailModelo(BSTR* mydir, BSTR* eDir, BSTR* zipFile) noexcept override;
  HRESULT STDMETHODCALLTYPE EnviarEmail() noexcept override;
  HRESULT STDMETHODCALLTYPE CrearZip(BSTR* eDir, BSTR* zipFile) noexcept override;
  HRESULT STDMETHODCALLTYPE ImprimirModelo() noexcept override;
  HRESULT STDMETHODCALLTYPE AsignarCampo(BSTR* nombreCampo, VARIANT* valor,
                                         Qm_Modelo_Impresion3::_Campos** result) noexcept override;
  HRESULT STDMETHODCALLTYPE AñadirCampo(BSTR* nombreCampo,
                                        Qm_Modelo_Impresion3::_Campos** result) noexcept override;
  HRESULT STDMETHODCALLTYPE AñadirTabla(BSTR* nombreTabla,
                                        Qm_Modelo_Impresion3::_Tablas** result) noexcept override;
  HRESULT STDMETHODCALLTYPE AsignarDatosTabla(BSTR* tabla, SHORT* numArchivo, SAFEARRAY** cArray,
                                              SAFEARRAY** dArray) noexcept override;
  HRESULT STDMETHODCALLTYPE
  AsignarDatosTablaQmF(Qm_Modelo_Impresion3::_QmFileControl2** qmF) noexcept override;
  HRESULT STDMETHODCALLTYPE Show() noexcept override;
  HRESULT STDMETHODCALLTYPE put_XMLFileName(BSTR value) noexcept override;
  HRESULT STDMETHODCALLTYPE get_XMLFileName(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE
  AsignarDatosTablaQmF2(Qm_Modelo_Impresion3::_QmFileControl2** qmF) noexcept override;

 private:
  [[nodiscard]] void* FindOther(REFIID id) noexcept override;
  // The host sees which folder an empty one stood for, once the document is made.
  HRESULT Compose(BSTR* folder, BSTR* file, mail::ComposeDocument* compose) noexcept;

  Composition& composition_;
  data::PrintJob job_;
  automation::OwnedVariant numeroModelo_;
  std::u16string eDir_;  // this one and the next two are the host's own; nothing here uses them
  std::int32_t error_ = 0;
  std::u16string errDescription_;
  bool impresionAnulada_ = false;        // set here, cleared only by the host
  automation::ConnectionPoints events_;  // hosts connect to Progress; it is never raised
};

}  // namespace qm::api
