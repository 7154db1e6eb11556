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
};

}  // namespace

constinit const Interface kRecordFileFace{u"_QmFileControl2", kRecordFileInterface, kRecordFileMembers,
                                          &kRecordFileLibrary};

namespace {
constexpr std::array kClasses{Class{u"QmFileControl2", kRecordFileClass, &kRecordFileFace, nullptr}};
}  // namespace

constinit const Library kRecordFileLibrary{u"QmFile2", kRecordFileLibraryId, kClasses};

}  // namespace qm::qmfile2
