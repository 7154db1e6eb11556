#pragma once
// The interfaces of QmFile2 for C++ hosts:
// CoCreateInstance(CLSID_QmFileControl2, ..., IID__QmFileControl2, ...).
// Made from the interface table by tools/regenerate_interface.sh; do not edit.
// Its errors are HRESULT 0x800A0000 + number, with IErrorInfo.
// clang-format off

#include <windows.h>
#include <oaidl.h>

namespace QmFile2 {

inline constexpr GUID LIBID_QmFile2 = {0x8D6CD1EA, 0x18A4, 0x4575, {0xBF, 0xE0, 0x72, 0xB6, 0x8C, 0xC2, 0x83, 0x86}};
inline constexpr GUID CLSID_QmFileControl2 = {0x44BEAA7F, 0xE468, 0x477E, {0xA0, 0x89, 0x61, 0x7A, 0x29, 0x6C, 0x8E, 0x9C}};
inline constexpr GUID IID__QmFileControl2 = {0x915BCCAB, 0xB787, 0x4164, {0xB1, 0xAE, 0x35, 0x94, 0x0F, 0x91, 0x86, 0x6F}};

MIDL_INTERFACE("915BCCAB-B787-4164-B1AE-35940F91866F")
_QmFileControl2 : public IDispatch {
 public:
  virtual HRESULT STDMETHODCALLTYPE TipoCampo(SHORT* Campo, SHORT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE FinArchivo(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE Siguiente() = 0;
  virtual HRESULT STDMETHODCALLTYPE NumeroRegistros(LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE NumeroCampos(SHORT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE ValorCampo(VARIANT* Campo, VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE NombreDelCampo(SHORT* Campo, BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE NombreDeTabla(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE Abrir(BSTR* Ruta, BSTR* Directorio) = 0;
  virtual HRESULT STDMETHODCALLTYPE Clave(SHORT* Campo) = 0;
  virtual HRESULT STDMETHODCALLTYPE Primero() = 0;
  virtual HRESULT STDMETHODCALLTYPE Buscar(BSTR* Valor) = 0;
  virtual HRESULT STDMETHODCALLTYPE Posicion(LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE AñadirRegistro() = 0;
  virtual HRESULT STDMETHODCALLTYPE EscribirCampo(BSTR* Valor, SHORT* Campo) = 0;
  virtual HRESULT STDMETHODCALLTYPE Guardar() = 0;
  virtual HRESULT STDMETHODCALLTYPE Cerrar() = 0;
  virtual HRESULT STDMETHODCALLTYPE Crear(BSTR* Ruta, BSTR* Directorio, BSTR* Tabla, BSTR* Campos) = 0;
};

}  // namespace QmFile2
