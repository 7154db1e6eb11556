#include "api/typelib/text_writer.h"

#include <cstdarg>
#include <cstdio>

#include "api/typelib/definition.h"
#include "api/typelib/guids.h"
#include "runtime/code_page.h"

namespace qm::api {

namespace {

using runtime::ToUtf8;

std::string Format(const char* pattern, ...) {
  char text[128];
  va_list values;
  va_start(values, pattern);
  std::vsnprintf(text, sizeof text, pattern, values);
  va_end(values);
  return text;
}

std::string Initializer(const GUID& id) {
  std::string text =
      Format("{0x%08lX, 0x%04X, 0x%04X, {", static_cast<unsigned long>(id.Data1), id.Data2, id.Data3);
  for (int i = 0; i < 8; ++i) text += Format(i ? ", 0x%02X" : "0x%02X", id.Data4[i]);
  return text + "}}";
}

std::string BareText(const GUID& id) {
  const std::string braced = BracedText(id);
  return braced.substr(1, braced.size() - 2);
}

const char* CppType(Type type) {
  switch (type) {
    case Type::Text:
      return "BSTR";
    case Type::Integer:
      return "SHORT";
    case Type::Long:
      return "LONG";
    case Type::Boolean:
      return "VARIANT_BOOL";
    case Type::Variant:
      return "VARIANT";
    case Type::Dispatch:
      return "IDispatch*";
    case Type::Campos:
      return "_Campos*";
    case Type::Tablas:
      return "_Tablas*";
    case Type::RecordFile:
      return "_QmFileControl2*";
    case Type::TextArray:
    case Type::IntegerArray:
      return "SAFEARRAY*";
    case Type::None:
      break;
  }
  return "void";
}

std::string Arguments(const Function& function) {
  const Member& member = *function.member;
  if (function.access == Access::Get) return std::string(CppType(member.type)) + "* result";
  if (function.access != Access::Call) return std::string(CppType(member.type)) + " value";
  std::string text;
  for (std::size_t i = 0; i < member.ParameterCount(); ++i) {
    if (i) text += ", ";
    text += std::string(CppType(member.parameters[i].type)) + "* " + ToUtf8(member.parameters[i].name);
  }
  if (member.type == Type::None) return text;
  return text + (text.empty() ? "" : ", ") + CppType(member.type) + "* result";
}

std::string InterfaceText(const Interface& face) {
  static constexpr const char* kPrefix[] = {"", "get_", "put_", "putref_"};
  std::string text = "MIDL_INTERFACE(\"" + BareText(face.id) + "\")\n" + ToUtf8(face.name) +
                     " : public IDispatch {\n public:\n";
  ForEachFunction(face, [&](const Function& function) {
    text += std::string("  virtual HRESULT STDMETHODCALLTYPE ") + kPrefix[static_cast<int>(function.access)] +
            ToUtf8(function.member->name) + "(" + Arguments(function) + ") = 0;\n";
  });
  return text + "};\n\n";
}

std::string IdLine(const char* prefix, std::u16string_view name, const GUID& id) {
  return std::string("inline constexpr GUID ") + prefix + ToUtf8(name) + " = " + Initializer(id) + ";\n";
}

}  // namespace

std::string BracedText(const GUID& id) {
  std::string text = Format("{%08lX-%04X-%04X-", static_cast<unsigned long>(id.Data1), id.Data2, id.Data3);
  for (int i = 0; i < 8; ++i) text += Format(i == 2 ? "-%02X" : "%02X", id.Data4[i]);
  return text + "}";
}

std::string HostHeader() {
  std::string text =
      "#pragma once\n"
      "// The interfaces of the component for C++ hosts: CoCreateInstance(CLSID_PrintForm, ..., "
      "IID__PrintForm, ...).\n"
      "// Made from the interface table by tools/regenerate_interface.sh; do not edit. Errors of the "
      "component are\n"
      "// HRESULT 0x800A0000 + number, with IErrorInfo.\n"
      "// clang-format off\n\n"
      "#include <windows.h>\n"
      "#include <oaidl.h>\n\n"
      "namespace Qm_Modelo_Impresion3 {\n\n";
  text += IdLine("LIBID_", kLibraryName, kLibraryId);
  for (const Class& each : Classes()) {
    text += IdLine("CLSID_", each.name, each.id) + IdLine("IID_", each.face->name, each.face->id);
    if (each.events) text += IdLine("DIID_", each.events->name, each.events->id);
  }
  text += IdLine("IID_", kRecordFileFace.name, kRecordFileFace.id) + "\n";
  for (const Interface* face :
       {&kRecordFileFace, &kTablasFace, &kCamposFace, &kDatosTablaFace, &kEmailFace, &kPrintFormFace}) {
    text += InterfaceText(*face);
  }
  return text + "}  // namespace Qm_Modelo_Impresion3\n";
}

std::string Manifest(bool is64Bit) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
      "<!-- Made from the interface table by tools/regenerate_interface.sh. Lies beside QmModImp3.dll as\n"
      "     QmModImp3.manifest, for hosts that use the component without registration. -->\n"
      "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n";
  text += std::string(
              "  <assemblyIdentity type=\"win32\" name=\"QmModImp3\" version=\"1.0.0.0\" "
              "processorArchitecture=\"") +
          (is64Bit ? "amd64" : "x86") + "\"/>\n  <file name=\"QmModImp3.dll\">\n";
  for (const Class& each : Classes()) {
    text += "    <comClass clsid=\"" + BracedText(each.id) + "\" threadingModel=\"Apartment\" tlbid=\"" +
            BracedText(kLibraryId) + "\" progid=\"" + ToUtf8(kLibraryName) + "." + ToUtf8(each.name) +
            "\"/>\n";
  }
  text += "    <typelib tlbid=\"" + BracedText(kLibraryId) + "\" version=\"1.0\" helpdir=\"\"/>\n  </file>\n";
  for (const Class& each : Classes()) {
    text += "  <comInterfaceExternalProxyStub name=\"" + ToUtf8(each.face->name) + "\" iid=\"" +
            BracedText(each.face->id) +
            "\" proxyStubClsid32=\"{00020424-0000-0000-C000-000000000046}\" "
            "baseInterface=\"{00020400-0000-0000-C000-"
            "000000000046}\" tlbid=\"" +
            BracedText(kLibraryId) + "\"/>\n";
  }
  return text + "</assembly>\n";
}

}  // namespace qm::api
