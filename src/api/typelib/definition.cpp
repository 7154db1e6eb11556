#include "api/typelib/definition.h"

#include <array>

#include "api/typelib/guids.h"
#include "qmfile2/typelib/definition.h"

namespace qm::api {

namespace {

using automation::ByRef;
using automation::Class;
using automation::Field;
using automation::Get;
using automation::Interface;
using automation::Let;
using automation::Library;
using automation::Member;
using automation::Method;
using automation::OptionalByRef;
using automation::Type;

constexpr std::array kPrintFormMembers{
    Field(u"NumeroModelo", 0x40030006, Type::Variant),
    Field(u"eDir", 0x40030007, Type::Text),
    Field(u"Error", 0x40030008, Type::Long),
    Field(u"ErrDescription", 0x40030009, Type::Text),
    Field(u"ImpresionAnulada", 0x4003000C, Type::Boolean),
    Field(u"Attachments", 0x4003000D, Type::Text),
    Field(u"HtmDir", 0x4003000E, Type::Text),
    Field(u"RutaEmail", 0x4003000F, Type::Text),
    Field(u"Email", 0x40030010, Type::Text),
    Field(u"EmailCC", 0x40030011, Type::Text),
    Field(u"DesCC", 0x40030012, Type::Text),
    Field(u"NombreDestinatario", 0x40030013, Type::Text),
    Field(u"EmailTexto", 0x40030014, Type::Text),
    Field(u"EmailTema", 0x40030015, Type::Text),
    Field(u"SMTPHost", 0x40030016, Type::Text),
    Field(u"SMTPPort", 0x40030017, Type::Long),
    Field(u"SSL", 0x40030018, Type::Boolean),
    Field(u"From", 0x40030019, Type::Text),
    Field(u"FromDisplayName", 0x4003001A, Type::Text),
    Field(u"UserName", 0x4003001B, Type::Text),
    Field(u"Password", 0x4003001C, Type::Text),
    Field(u"UseAuthentication", 0x4003001D, Type::Boolean),
    Field(u"UsePopAuthentication", 0x4003001E, Type::Boolean),
    Field(u"PoP3Host", 0x4003001F, Type::Text),
    Field(u"Receipt", 0x40030020, Type::Boolean),
    Method(u"AñadirCampoTabla", 0x60030001,
           {ByRef(u"Tabla", Type::Text), ByRef(u"Campo", Type::Text), ByRef(u"Valor", Type::Text),
            ByRef(u"Tipo", Type::Integer)}),
    Method(u"EmailModelo", 0x60030003,
           {ByRef(u"Mydir", Type::Text), ByRef(u"eDir", Type::Text), ByRef(u"ZipFile", Type::Text)}),
    Method(u"EnviarEmail", 0x60030004),
    Method(u"CrearZip", 0x60030005, {ByRef(u"eDir", Type::Text), ByRef(u"ZipFile", Type::Text)}),
    Method(u"ImprimirModelo", 0x60030009),
    Method(u"AsignarCampo", 0x6003000E, {ByRef(u"NombreCampo", Type::Text), ByRef(u"Valor", Type::Variant)},
           kCamposFace),
    Method(u"AñadirCampo", 0x6003000F, {ByRef(u"NombreCampo", Type::Text)}, kCamposFace),
    Method(u"AñadirTabla", 0x60030010, {ByRef(u"NombreTabla", Type::Text)}, kTablasFace),
    Method(u"AsignarDatosTabla", 0x60030011,
           {ByRef(u"Tabla", Type::Text), ByRef(u"NumArchivo", Type::Integer),
            ByRef(u"CArray", Type::TextArray), ByRef(u"DArray", Type::IntegerArray)}),
    Method(u"AsignarDatosTablaQmF", 0x60030012, {ByRef(u"QmF", qmfile2::kRecordFileFace)}),
    Method(u"Show", 0x60030015),
    Let(u"XMLFileName", 0x68030000, Type::Text),
    Get(u"XMLFileName", 0x68030000, Type::Text),
    Method(u"AsignarDatosTablaQmF2", 0x60030017, {ByRef(u"QmF", qmfile2::kRecordFileFace)}),
};

constexpr std::array kPrintFormEventsMembers{
    Method(u"Progress", 1, {ByRef(u"Percentage", Type::Long)}),
};

constexpr std::array kTablasMembers{
    Field(u"Tabla", 0x40030000, Type::Text),
};

constexpr std::array kCamposMembers{
    Field(u"Campo", 0x40030000, Type::Text),
    Field(u"Valor", 0x40030001, Type::Text),
};

constexpr std::array kDatosTablaMembers{
    Field(u"Tabla", 0x40030000, Type::Text),
    Field(u"Campo", 0x40030001, Type::Text),
    Field(u"Valor", 0x40030002, Type::Text),
    Field(u"Tipo", 0x40030003, Type::Integer),
};

constexpr std::array kEmailMembers{
    Field(u"EmailDestinatario", 0x40030000, Type::Text),
    Field(u"NombreDestinatario", 0x40030001, Type::Text),
    Field(u"CC", 0x40030002, Type::Text),
    Field(u"NombreCC", 0x40030003, Type::Text),
    Field(u"Tema", 0x40030004, Type::Text),
    Field(u"Texto", 0x40030005, Type::Text),
    Field(u"ArchivoHTML", 0x40030006, Type::Text),
    Field(u"ArchivosAdjuntos", 0x40030007, Type::Text),
    Field(u"Recibo", 0x40030008, Type::Boolean),
    Method(u"LeerPerfiles", 0x60030000,
           {ByRef(u"PorDefecto", Type::Integer), OptionalByRef(u"PerfilPorDefecto", Type::Text)},
           Type::Dispatch),
    Method(u"PerfilPorDefecto", 0x60030001, {}, Type::Text),
    Get(u"Perfil", 0x68030000, Type::Text),
    Let(u"Perfil", 0x68030000, Type::Text),
    Method(u"Enviar", 0x60030002, {}, Type::Text),
};

constexpr int SlotCount(std::span<const Member> members) {
  int count = 0;
  for (const Member& member : members) count += member.SlotCount();
  return count;
}
static_assert(SlotCount(kPrintFormMembers) == 65);

}  // namespace

constinit const Interface kPrintFormFace{u"_PrintForm", kPrintFormInterface, kPrintFormMembers, &kComponent};
constinit const Interface kPrintFormEventsFace{u"__PrintForm", kPrintFormEvents, kPrintFormEventsMembers,
                                               &kComponent};
constinit const Interface kTablasFace{u"_Tablas", kTablasInterface, kTablasMembers, &kComponent};
constinit const Interface kCamposFace{u"_Campos", kCamposInterface, kCamposMembers, &kComponent};
constinit const Interface kDatosTablaFace{u"_DatosTabla", kDatosTablaInterface, kDatosTablaMembers,
                                          &kComponent};
constinit const Interface kEmailFace{u"_Email", kEmailInterface, kEmailMembers, &kComponent};

namespace {
constexpr std::array kClasses{
    Class{u"PrintForm", kPrintFormClass, &kPrintFormFace, &kPrintFormEventsFace},
    Class{u"Tablas", kTablasClass, &kTablasFace, nullptr},
    Class{u"Campos", kCamposClass, &kCamposFace, nullptr},
    Class{u"DatosTabla", kDatosTablaClass, &kDatosTablaFace, nullptr},
    Class{u"Email", kEmailClass, &kEmailFace, nullptr},
};
}  // namespace

constinit const Library kComponent{u"Qm_Modelo_Impresion3", kLibraryId, kClasses};

}  // namespace qm::api
