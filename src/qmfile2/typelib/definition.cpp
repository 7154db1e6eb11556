#include "qmfile2/typelib/definition.h"

#include <array>

#include "qmfile2/typelib/guids.h"

namespace qm::qmfile2 {

namespace {

using automation::ByRef;
using automation::Class;
using automation::Interface;
using automation::Library;
using automation::Method;
using automation::Type;

constexpr std::array kRecordFileMembers{
    Method(u"TipoCampo", 0x60030000, {ByRef(u"Campo", Type::Integer)}, Type::Integer),
    Method(u"FinArchivo", 0x60030001, {}, Type::Boolean),
    Method(u"Siguiente", 0x60030002),
    Method(u"NumeroRegistros", 0x60030003, {}, Type::Long),
    Method(u"NumeroCampos", 0x60030004, {}, Type::Integer),
    Method(u"ValorCampo", 0x60030005, {ByRef(u"Campo", Type::Variant)}, Type::Variant),
    Method(u"NombreDelCampo", 0x60030006, {ByRef(u"Campo", Type::Integer)}, Type::Text),
    Method(u"NombreDeTabla", 0x60030007, {}, Type::Text),
    Method(u"Abrir", 0x60030008, {ByRef(u"Ruta", Type::Text), ByRef(u"Directorio", Type::Text)}),
    Method(u"Clave", 0x60030009, {ByRef(u"Campo", Type::Integer)}),
    Method(u"Primero", 0x6003000A),
    Method(u"Buscar", 0x6003000B, {ByRef(u"Valor", Type::Text)}),
    Method(u"Posicion", 0x6003000C, {}, Type::Long),
    Method(u"AñadirRegistro", 0x6003000D),
    Method(u"EscribirCampo", 0x6003000E, {ByRef(u"Valor", Type::Text), ByRef(u"Campo", Type::Integer)}),
    Method(u"Guardar", 0x6003000F),
    Method(u"Cerrar", 0x60030010),
    Method(u"Crear", 0x60030011,
           {ByRef(u"Ruta", Type::Text), ByRef(u"Directorio", Type::Text), ByRef(u"Tabla", Type::Text),
            ByRef(u"Campos", Type::Text)}),
};

}  // namespace

constinit const Interface kRecordFileFace{u"_QmFileControl2", kRecordFileInterface, kRecordFileMembers,
                                          &kRecordFileLibrary};

namespace {
constexpr std::array kClasses{Class{u"QmFileControl2", kRecordFileClass, &kRecordFileFace, nullptr}};
}  // namespace

constinit const Library kRecordFileLibrary{u"QmFile2", kRecordFileLibraryId, kClasses};

}  // namespace qm::qmfile2
