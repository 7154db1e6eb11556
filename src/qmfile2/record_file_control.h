#pragma once
// The class QmFileControl2: a record file for hosts, and for the component that they pass it to.

#include "automation/automation_object.h"
#include "platform/win32/files.h"
#include "qmfile2/typelib/QmFile2.h"
#include "qmfile2/typelib/definition.h"
#include "recordfile/record_file.h"

namespace qm::qmfile2 {

class QmFileControl2 final : public automation::AutomationObject<QmFile2::_QmFileControl2, kRecordFileFace> {
 public:
  HRESULT STDMETHODCALLTYPE TipoCampo(SHORT* campo, SHORT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE FinArchivo(VARIANT_BOOL* result) noexcept override;
  HRESULT STDMETHODCALLTYPE Siguiente() noexcept override;
  HRESULT STDMETHODCALLTYPE NumeroRegistros(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE NumeroCampos(SHORT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE ValorCampo(VARIANT* campo, VARIANT* result) noexcept override;
  HRESULT STDMETHODCALLTYPE NombreDelCampo(SHORT* campo, BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE NombreDeTabla(BSTR* result) noexcept override;
  HRESULT STDMETHODCALLTYPE Abrir(BSTR* ruta, BSTR* directorio) noexcept override;
  HRESULT STDMETHODCALLTYPE Clave(SHORT* campo) noexcept override;
  HRESULT STDMETHODCALLTYPE Primero() noexcept override;
  HRESULT STDMETHODCALLTYPE Buscar(BSTR* valor) noexcept override;
  HRESULT STDMETHODCALLTYPE Posicion(LONG* result) noexcept override;
  HRESULT STDMETHODCALLTYPE AñadirRegistro() noexcept override;
  HRESULT STDMETHODCALLTYPE EscribirCampo(BSTR* valor, SHORT* campo) noexcept override;
  HRESULT STDMETHODCALLTYPE Guardar() noexcept override;
  HRESULT STDMETHODCALLTYPE Cerrar() noexcept override;
  HRESULT STDMETHODCALLTYPE Crear(BSTR* ruta, BSTR* directorio, BSTR* tabla, BSTR* campos) noexcept override;

 private:
  platform::win32::Win32Files files_;
  recordfile::RecordFile file_{files_};
};

}  // namespace qm::qmfile2
