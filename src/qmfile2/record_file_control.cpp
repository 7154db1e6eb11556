#include "qmfile2/record_file_control.h"

#include "automation/variants.h"
#include "recordfile/field_list.h"

namespace qm::qmfile2 {

using automation::Export;
using automation::NewBstr;
using automation::OwnedVariant;
using automation::Required;
using automation::TextOf;

HRESULT QmFileControl2::TipoCampo(SHORT* campo, SHORT* result) noexcept {
  return Call([&] { Export(file_.Field(Required(campo)).type, Required(result)); });
}

HRESULT QmFileControl2::FinArchivo(VARIANT_BOOL* result) noexcept {
  return Call([&] { Export(file_.AtEnd(), Required(result)); });
}

HRESULT QmFileControl2::Siguiente() noexcept {
  return Call([&] { file_.Next(); });
}

HRESULT QmFileControl2::NumeroRegistros(LONG* result) noexcept {
  return Call([&] { Export(std::int32_t{file_.Count()}, Required(result)); });
}

HRESULT QmFileControl2::NumeroCampos(SHORT* result) noexcept {
  return Call([&] { Export(static_cast<std::int16_t>(file_.FieldCount()), Required(result)); });
}

HRESULT QmFileControl2::ValorCampo(VARIANT* campo, VARIANT* result) noexcept {
  return Call([&] {
    VARIANT& place = Required(result);
    VariantInit(&place);
    OwnedVariant number;
    automation::Convert(Required(campo), VT_I2, number);
    place.bstrVal = NewBstr(file_.Value(number->iVal));
    place.vt = VT_BSTR;
  });
}

HRESULT QmFileControl2::NombreDelCampo(SHORT* campo, BSTR* result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    Export(file_.Field(Required(campo)).name, *result);
  });
}

HRESULT QmFileControl2::NombreDeTabla(BSTR* result) noexcept {
  return Call([&] {
    Required(result) = nullptr;
    Export(file_.TableName(), *result);
  });
}

HRESULT QmFileControl2::Abrir(BSTR* ruta, BSTR* directorio) noexcept {
  return Call([&] { file_.Open(TextOf(Required(ruta)), TextOf(Required(directorio))); });
}

HRESULT QmFileControl2::Clave(SHORT* campo) noexcept {
  return Call([&] { file_.SelectKey(Required(campo)); });
}

HRESULT QmFileControl2::Primero() noexcept {
  return Call([&] { file_.First(); });
}

HRESULT QmFileControl2::Buscar(BSTR* valor) noexcept {
  return Call([&] { file_.Seek(TextOf(Required(valor))); });
}

HRESULT QmFileControl2::Posicion(LONG* result) noexcept {
  return Call([&] { Export(std::int32_t{file_.Position()}, Required(result)); });
}

HRESULT QmFileControl2::AñadirRegistro() noexcept {
  return Call([&] { file_.Add(); });
}

HRESULT QmFileControl2::EscribirCampo(BSTR* valor, SHORT* campo) noexcept {
  return Call([&] { file_.Write(Required(campo), TextOf(Required(valor))); });
}

HRESULT QmFileControl2::Guardar() noexcept {
  return Call([&] { file_.Store(); });
}

HRESULT QmFileControl2::Cerrar() noexcept {
  return Call([&] { file_.Close(); });
}

HRESULT QmFileControl2::Crear(BSTR* ruta, BSTR* directorio, BSTR* tabla, BSTR* campos) noexcept {
  return Call([&] {
    file_.Create(TextOf(Required(ruta)), TextOf(Required(directorio)), TextOf(Required(tabla)),
                 recordfile::ParseFieldList(TextOf(Required(campos))));
  });
}

}  // namespace qm::qmfile2
