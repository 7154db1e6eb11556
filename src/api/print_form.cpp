#include "api/print_form.h"

#include "api/host_arrays.h"
#include "api/host_record_file.h"
#include "api/model_number.h"
#include "api/records.h"
#include "data/bulk_loading.h"
#include "data/fields.h"
#include "mail/print_job_mail.h"

namespace qm::api {

using automation::Export;
using automation::Import;
using automation::OwnedVariant;
using automation::Required;
using automation::TextOf;
using Qm_Modelo_Impresion3::_Campos;
using Qm_Modelo_Impresion3::_QmFileControl2;
using Qm_Modelo_Impresion3::_Tablas;

namespace {

// What a host passed by reference.
void ReplaceText(BSTR& text, std::u16string_view by) {
  BSTR made = automation::NewBstr(by);
  SysFreeString(text);
  text = made;
}

}  // namespace

PrintForm::PrintForm(Composition& composition)
    : composition_(composition), events_(*static_cast<IDispatch*>(this), kPrintFormEventsFace) {}

void* PrintForm::FindOther(REFIID id) noexcept {
  return IsEqualGUID(id, IID_IConnectionPointContainer) ? static_cast<IConnectionPointContainer*>(&events_)
                                                        : nullptr;
}

HRESULT PrintForm::get_NumeroModelo(VARIANT* result) noexcept {
  return Call([&] {
    VARIANT& place = Required(result);
    OwnedVariant copy;
    copy.CopyFrom(numeroModelo_.Get());
    place = copy.Release();
  });
}

HRESULT PrintForm::put_NumeroModelo(VARIANT value) noexcept {
  return Call([&] { numeroModelo_.CopyFrom(value); });
}

// Stores what comes, like the let: some hosts bind plain assignments to the set accessor.
HRESULT PrintForm::putref_NumeroModelo(VARIANT value) noexcept { return put_NumeroModelo(value); }

HRESULT PrintForm::AñadirCampoTabla(BSTR* tabla, BSTR* campo, BSTR* valor, SHORT* tipo) noexcept {
  return Call([&] {
    data::Cell cell;
    Import(Required(tabla), cell.tabla);
    Import(Required(campo), cell.campo);
    Import(Required(valor), cell.valor);
    Import(Required(tipo), cell.tipo);
    data::AñadirCampoTabla(job_, std::move(cell));
  });
}

HRESULT PrintForm::AsignarCampo(BSTR* nombreCampo, VARIANT* valor, _Campos** result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    const std::u16string_view name = TextOf(Required(nombreCampo));
    if (auto added = data::AsignarCampo(job_, name, TextOf(Required(valor))))
      *result = new Campos(std::move(added));
  });
}

HRESULT PrintForm::AñadirCampo(BSTR* nombreCampo, _Campos** result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    *result = new Campos(data::AñadirCampo(job_, TextOf(Required(nombreCampo))));
  });
}

HRESULT PrintForm::AñadirTabla(BSTR* nombreTabla, _Tablas** result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    *result = new Tablas(data::AñadirTabla(job_, TextOf(Required(nombreTabla))));
  });
}

HRESULT PrintForm::AsignarDatosTabla(BSTR* tabla, SHORT* numArchivo, SAFEARRAY** cArray,
                                     SAFEARRAY** dArray) noexcept {
  return Call([&] {
    const std::u16string table(TextOf(Required(tabla)));
    const SHORT file = Required(numArchivo);
    HostArrays arrays(Required(cArray), Required(dArray));
    data::AsignarDatosTabla(job_, table, file, arrays, composition_.Files());
  });
}

HRESULT PrintForm::AsignarDatosTablaQmF(_QmFileControl2** qmF) noexcept {
  return Call([&] {
    HostRecordFile records(Required(qmF));
    data::AsignarDatosTablaQmF(job_, records, composition_.Clock());
  });
}

HRESULT PrintForm::AsignarDatosTablaQmF2(_QmFileControl2** qmF) noexcept {
  return Call([&] {
    HostRecordFile records(Required(qmF));
    data::AsignarDatosTablaQmF2(job_, records, composition_.Clock());
  });
}

HRESULT PrintForm::ImprimirModelo() noexcept {
  return Call([&] {
    job_.numeroModelo = ModelNumberOf(numeroModelo_.Get());
    if (!composition_.Imprimir(job_)) impresionAnulada_ = true;
  });
}

HRESULT PrintForm::put_XMLFileName(BSTR value) noexcept {
  return Call([&] { composition_.ModelFile().SetName(TextOf(value)); });
}

HRESULT PrintForm::get_XMLFileName(BSTR* result) noexcept {
  return Call([&] { Export(composition_.ModelFile().name, Required(result)); });
}

HRESULT PrintForm::Compose(BSTR* folder, BSTR* file, mail::ComposeDocument* compose) noexcept {
  return Call([&] {
    std::u16string composedIn(TextOf(Required(folder)));
    const std::u16string name(TextOf(Required(file)));
    job_.numeroModelo = ModelNumberOf(numeroModelo_.Get());
    const bool isDefault = composedIn.empty();
    composition_.WithMail(
        [&](const mail::Environment& environment) { compose(job_, environment, composedIn, name); });
    if (isDefault) ReplaceText(*folder, composedIn);
  });
}

HRESULT PrintForm::EmailModelo(BSTR* mydir, BSTR*, BSTR* zipFile) noexcept {
  return Compose(mydir, zipFile, mail::EmailModelo);
}

HRESULT PrintForm::CrearZip(BSTR* eDir, BSTR* zipFile) noexcept {
  return Compose(eDir, zipFile, mail::CrearZip);
}

HRESULT PrintForm::EnviarEmail() noexcept {
  return Call([&] {
    composition_.WithMail(
        [&](const mail::Environment& environment) { mail::EnviarEmail(job_, environment); });
  });
}

HRESULT PrintForm::Show() noexcept {
  return Call([&] {
    job_.numeroModelo = ModelNumberOf(numeroModelo_.Get());
    composition_.Show(job_);
  });
}

}  // namespace qm::api
