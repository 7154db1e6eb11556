#pragma once
// The interfaces of Qm_Modelo_Impresion3 for C++ hosts:
// CoCreateInstance(CLSID_PrintForm, ..., IID__PrintForm, ...).
// Made from the interface table by tools/regenerate_interface.sh; do not edit.
// Its errors are HRESULT 0x800A0000 + number, with IErrorInfo.
// clang-format off

#include <windows.h>
#include <oaidl.h>

namespace Qm_Modelo_Impresion3 {

inline constexpr GUID LIBID_Qm_Modelo_Impresion3 = {0xC4035D2F, 0x442D, 0x4F35, {0xB9, 0xA1, 0x73, 0x8B, 0xDF, 0x58, 0x15, 0x16}};
inline constexpr GUID CLSID_PrintForm = {0xEF7037AF, 0xBD84, 0x4BAA, {0x94, 0xE3, 0xC2, 0x35, 0xA8, 0x7C, 0xBF, 0x75}};
inline constexpr GUID IID__PrintForm = {0x8889E8E6, 0x5DA6, 0x4A77, {0x9D, 0x55, 0xDB, 0x88, 0xCA, 0x34, 0x12, 0xFA}};
inline constexpr GUID DIID___PrintForm = {0x2F87DB1D, 0x52E7, 0x445B, {0x96, 0xAC, 0x39, 0xB1, 0xA6, 0xC9, 0x16, 0x97}};
inline constexpr GUID CLSID_Tablas = {0x511F930D, 0x7501, 0x4FE7, {0xAC, 0x9B, 0x35, 0x1C, 0x2E, 0xBF, 0xD9, 0x27}};
inline constexpr GUID IID__Tablas = {0xE0CFBEA5, 0x3967, 0x4D3E, {0x96, 0xB8, 0x5B, 0x1B, 0xEF, 0x01, 0xEC, 0x6C}};
inline constexpr GUID CLSID_Campos = {0x63022B5C, 0x6C02, 0x4724, {0x9F, 0x29, 0xE0, 0x5B, 0x5D, 0xE8, 0x6E, 0x69}};
inline constexpr GUID IID__Campos = {0xC962D05E, 0x927E, 0x4DD5, {0xBE, 0x99, 0xEE, 0x93, 0x88, 0xFF, 0xA7, 0x56}};
inline constexpr GUID CLSID_DatosTabla = {0x4C5F0467, 0xA7C9, 0x45A7, {0x87, 0x2C, 0x59, 0xCE, 0x4C, 0x35, 0x70, 0x9A}};
inline constexpr GUID IID__DatosTabla = {0xD463F92A, 0x7320, 0x433A, {0x81, 0x5F, 0xBD, 0x5D, 0x4A, 0xEF, 0xB0, 0xDA}};
inline constexpr GUID CLSID_Email = {0xB3888D0E, 0x57CE, 0x49A1, {0x95, 0x3B, 0xB7, 0x2E, 0x90, 0xC3, 0x6D, 0x7D}};
inline constexpr GUID IID__Email = {0x41BBD1AA, 0xD02E, 0x4981, {0xA3, 0x88, 0xD7, 0x0D, 0x24, 0x4A, 0x85, 0x18}};
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

MIDL_INTERFACE("E0CFBEA5-3967-4D3E-96B8-5B1BEF01EC6C")
_Tablas : public IDispatch {
 public:
  virtual HRESULT STDMETHODCALLTYPE get_Tabla(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Tabla(BSTR value) = 0;
};

MIDL_INTERFACE("C962D05E-927E-4DD5-BE99-EE9388FFA756")
_Campos : public IDispatch {
 public:
  virtual HRESULT STDMETHODCALLTYPE get_Campo(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Campo(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Valor(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Valor(BSTR value) = 0;
};

MIDL_INTERFACE("D463F92A-7320-433A-815F-BD5D4AEFB0DA")
_DatosTabla : public IDispatch {
 public:
  virtual HRESULT STDMETHODCALLTYPE get_Tabla(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Tabla(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Campo(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Campo(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Valor(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Valor(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Tipo(SHORT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Tipo(SHORT value) = 0;
};

MIDL_INTERFACE("41BBD1AA-D02E-4981-A388-D70D244A8518")
_Email : public IDispatch {
 public:
  virtual HRESULT STDMETHODCALLTYPE get_EmailDestinatario(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_EmailDestinatario(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_NombreDestinatario(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_NombreDestinatario(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_CC(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_CC(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_NombreCC(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_NombreCC(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Tema(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Tema(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Texto(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Texto(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ArchivoHTML(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_ArchivoHTML(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ArchivosAdjuntos(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_ArchivosAdjuntos(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Recibo(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Recibo(VARIANT_BOOL value) = 0;
  virtual HRESULT STDMETHODCALLTYPE LeerPerfiles(SHORT* PorDefecto, BSTR* PerfilPorDefecto, IDispatch** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE PerfilPorDefecto(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Perfil(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Perfil(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE Enviar(BSTR* result) = 0;
};

MIDL_INTERFACE("8889E8E6-5DA6-4A77-9D55-DB88CA3412FA")
_PrintForm : public IDispatch {
 public:
  virtual HRESULT STDMETHODCALLTYPE get_NumeroModelo(VARIANT* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_NumeroModelo(VARIANT value) = 0;
  virtual HRESULT STDMETHODCALLTYPE putref_NumeroModelo(VARIANT value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_eDir(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_eDir(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Error(LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Error(LONG value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ErrDescription(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_ErrDescription(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_ImpresionAnulada(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_ImpresionAnulada(VARIANT_BOOL value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Attachments(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Attachments(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_HtmDir(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_HtmDir(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_RutaEmail(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_RutaEmail(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Email(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Email(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_EmailCC(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_EmailCC(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_DesCC(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_DesCC(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_NombreDestinatario(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_NombreDestinatario(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_EmailTexto(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_EmailTexto(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_EmailTema(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_EmailTema(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SMTPHost(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_SMTPHost(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SMTPPort(LONG* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_SMTPPort(LONG value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_SSL(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_SSL(VARIANT_BOOL value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_From(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_From(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_FromDisplayName(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_FromDisplayName(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_UserName(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_UserName(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Password(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Password(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_UseAuthentication(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_UseAuthentication(VARIANT_BOOL value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_UsePopAuthentication(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_UsePopAuthentication(VARIANT_BOOL value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_PoP3Host(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_PoP3Host(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_Receipt(VARIANT_BOOL* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE put_Receipt(VARIANT_BOOL value) = 0;
  virtual HRESULT STDMETHODCALLTYPE AñadirCampoTabla(BSTR* Tabla, BSTR* Campo, BSTR* Valor, SHORT* Tipo) = 0;
  virtual HRESULT STDMETHODCALLTYPE EmailModelo(BSTR* Mydir, BSTR* eDir, BSTR* ZipFile) = 0;
  virtual HRESULT STDMETHODCALLTYPE EnviarEmail() = 0;
  virtual HRESULT STDMETHODCALLTYPE CrearZip(BSTR* eDir, BSTR* ZipFile) = 0;
  virtual HRESULT STDMETHODCALLTYPE ImprimirModelo() = 0;
  virtual HRESULT STDMETHODCALLTYPE AsignarCampo(BSTR* NombreCampo, VARIANT* Valor, _Campos** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE AñadirCampo(BSTR* NombreCampo, _Campos** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE AñadirTabla(BSTR* NombreTabla, _Tablas** result) = 0;
  virtual HRESULT STDMETHODCALLTYPE AsignarDatosTabla(BSTR* Tabla, SHORT* NumArchivo, SAFEARRAY** CArray, SAFEARRAY** DArray) = 0;
  virtual HRESULT STDMETHODCALLTYPE AsignarDatosTablaQmF(_QmFileControl2** QmF) = 0;
  virtual HRESULT STDMETHODCALLTYPE Show() = 0;
  virtual HRESULT STDMETHODCALLTYPE put_XMLFileName(BSTR value) = 0;
  virtual HRESULT STDMETHODCALLTYPE get_XMLFileName(BSTR* result) = 0;
  virtual HRESULT STDMETHODCALLTYPE AsignarDatosTablaQmF2(_QmFileControl2** QmF) = 0;
};

}  // namespace Qm_Modelo_Impresion3
