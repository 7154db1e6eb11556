#include "automation/typelib/text_writer.h"

#include <cstdarg>
#include <cstdio>

#include "automation/typelib/description.h"
#include "runtime/code_page.h"

namespace qm::automation {

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

std::string CppType(Type type, const Interface* object) {
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
    case Type::Object:
      return ToUtf8(object->name) + "*";
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
  if (function.access == Access::Get) return CppType(member.type, member.object) + "* result";
  if (function.access != Access::Call) return CppType(member.type, member.object) + " value";
  std::string text;
  for (std::size_t i = 0; i < member.ParameterCount(); ++i) {
    if (i) text += ", ";
    text += CppType(member.parameters[i].type, member.parameters[i].object) + "* " +
            ToUtf8(member.parameters[i].name);
  }
  if (member.type == Type::None) return text;
  return text + (text.empty() ? "" : ", ") + CppType(member.type, member.object) + "* result";
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

std::string HostHeader(const Library& library, std::span<const Interface* const> imports) {
  const Class& first = library.classes.front();
  const std::string space = ToUtf8(library.name);
  std::string text =
      "#pragma once\n"
      "// The interfaces of the component for C++ hosts: CoCreateInstance(CLSID_" +
      ToUtf8(first.name) + ", ..., IID_" + ToUtf8(first.face->name) +
      ", ...).\n"
      "// Made from the interface table by tools/regenerate_interface.sh; do not edit. Errors of the "
      "component are\n"
      "// HRESULT 0x800A0000 + number, with IErrorInfo.\n"
      "// clang-format off\n\n"
      "#include <windows.h>\n"
      "#include <oaidl.h>\n\n"
      "namespace " +
      space + " {\n\n";
  text += IdLine("LIBID_", library.name, library.id);
  for (const Class& each : library.classes) {
    text += IdLine("CLSID_", each.name, each.id) + IdLine("IID_", each.face->name, each.face->id);
    if (each.events) text += IdLine("DIID_", each.events->name, each.events->id);
  }
  for (const Interface* face : imports) text += IdLine("IID_", face->name, face->id);
  text += "\n";
  for (const Interface* face : imports) text += InterfaceText(*face);
  // The first class refers to the others.
  for (const Class& each : library.classes.subspan(1)) text += InterfaceText(*each.face);
  return text + InterfaceText(*first.face) + "}  // namespace " + space + "\n";
}

std::string Manifest(const Library& library, const std::string& name, bool is64Bit) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
      "<!-- Made from the interface table by tools/regenerate_interface.sh. Lies beside " +
      name + ".dll as\n     " + name +
      ".manifest, for hosts that use the component without registration. -->\n"
      "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n";
  text += "  <assemblyIdentity type=\"win32\" name=\"" + name +
          "\" version=\"1.0.0.0\" processorArchitecture=\"" + (is64Bit ? "amd64" : "x86") +
          "\"/>\n  <file name=\"" + name + ".dll\">\n";
  const std::string libraryId = BracedText(library.id);
  for (const Class& each : library.classes) {
    text += "    <comClass clsid=\"" + BracedText(each.id) + "\" threadingModel=\"Apartment\" tlbid=\"" +
            libraryId + "\" progid=\"" + ToUtf8(library.name) + "." + ToUtf8(each.name) + "\"/>\n";
  }
  text += "    <typelib tlbid=\"" + libraryId + "\" version=\"1.0\" helpdir=\"\"/>\n  </file>\n";
  for (const Class& each : library.classes) {
    text += "  <comInterfaceExternalProxyStub name=\"" + ToUtf8(each.face->name) + "\" iid=\"" +
            BracedText(each.face->id) +
            "\" proxyStubClsid32=\"{00020424-0000-0000-C000-000000000046}\" "
            "baseInterface=\"{00020400-0000-0000-C000-"
            "000000000046}\" tlbid=\"" +
            libraryId + "\"/>\n";
  }
  return text + "</assembly>\n";
}

}  // namespace qm::automation
