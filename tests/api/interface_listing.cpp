#include "tests/api/interface_listing.h"

#include <oleauto.h>
#include <wrl/client.h>

#include <cstdio>
#include <initializer_list>

namespace qm::tests {

namespace {

using Microsoft::WRL::ComPtr;

std::string Utf8(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), size, nullptr, nullptr);
  bytes.resize(bytes.size() - 1);
  return bytes;
}

std::string Joined(std::initializer_list<std::string> parts) {
  std::string text;
  for (const std::string& part : parts) text += part;
  return text;
}

std::string Text(const GUID& id) {
  wchar_t text[64];
  StringFromGUID2(id, text, 64);
  return Utf8(text);
}

std::string Hex(long value) {
  char text[16];
  std::snprintf(text, sizeof text, "%08lX", static_cast<unsigned long>(value));
  return text;
}

std::string NameOf(ITypeInfo& info) {
  BSTR name = nullptr;
  info.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  std::string text = name ? Utf8(name) : "";
  SysFreeString(name);
  return text;
}

std::string Describe(ITypeInfo& info, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_BSTR:
      return "BSTR";
    case VT_I2:
      return "short";
    case VT_I4:
      return "long";
    case VT_BOOL:
      return "VARIANT_BOOL";
    case VT_VARIANT:
      return "VARIANT";
    case VT_DISPATCH:
      return "IDispatch*";
    case VT_HRESULT:
      return "HRESULT";
    case VT_VOID:
      return "void";
    case VT_PTR:
      return Describe(info, *type.lptdesc) + "*";
    case VT_SAFEARRAY:
      return Joined({"SAFEARRAY(", Describe(info, *type.lptdesc), ")"});
    case VT_USERDEFINED: {
      ComPtr<ITypeInfo> referred;
      return SUCCEEDED(info.GetRefTypeInfo(type.hreftype, &referred)) ? NameOf(*referred.Get())
                                                                      : "unresolved";
    }
    default:
      return Joined({"vt", std::to_string(type.vt)});
  }
}

std::string Parameter(ITypeInfo& info, const ELEMDESC& parameter, const std::string& name) {
  const USHORT flags = parameter.paramdesc.wParamFlags;
  std::string text = "[";
  if (flags & PARAMFLAG_FIN) text += "in ";
  if (flags & PARAMFLAG_FOUT) text += "out ";
  if (flags & PARAMFLAG_FRETVAL) text += "retval ";
  if (flags & PARAMFLAG_FOPT) text += "optional ";
  if (flags & PARAMFLAG_FHASDEFAULT) {
    const VARIANT& value = parameter.paramdesc.pparamdescex->varDefaultValue;
    text += value.vt == VT_BSTR ? Joined({"default=\"", Utf8(value.bstrVal ? value.bstrVal : L""), "\" "})
                                : "default=? ";
  }
  text.back() = ']';
  return Joined({text, " ", Describe(info, parameter.tdesc), name.empty() ? "" : " ", name});
}

std::string FunctionLine(ITypeInfo& info, const FUNCDESC& function) {
  BSTR names[8] = {};
  UINT count = 0;
  info.GetNames(function.memid, names, 8, &count);
  constexpr int kPointer = static_cast<int>(sizeof(void*));
  std::string line = "  ";
  if (function.funckind == FUNC_DISPATCH)
    line += "-";
  else if (function.oVft % kPointer != 0)
    line += "?";
  else
    line += std::to_string(function.oVft / kPointer);
  const char* kind = function.invkind == INVOKE_PROPERTYGET      ? " get "
                     : function.invkind == INVOKE_PROPERTYPUT    ? " let "
                     : function.invkind == INVOKE_PROPERTYPUTREF ? " set "
                                                                 : " method ";
  line += Joined({" ", Hex(function.memid), kind, Describe(info, function.elemdescFunc.tdesc), " ",
                  count ? Utf8(names[0]) : "", "("});
  for (int i = 0; i < function.cParams; ++i) {
    const auto name = static_cast<UINT>(i + 1);
    if (i) line += ", ";
    line += Parameter(info, function.lprgelemdescParam[i],
                      name < count && function.invkind == INVOKE_FUNC ? Utf8(names[name]) : "");
  }
  for (BSTR name : names) SysFreeString(name);
  return line + ")\n";
}

std::string Flags(WORD flags) {
  std::string text;
  if (flags & TYPEFLAG_FCANCREATE) text += " creatable";
  if (flags & TYPEFLAG_FHIDDEN) text += " hidden";
  if (flags & TYPEFLAG_FDUAL) text += " dual";
  if (flags & TYPEFLAG_FNONEXTENSIBLE) text += " nonextensible";
  if (flags & TYPEFLAG_FOLEAUTOMATION) text += " oleautomation";
  return text;
}

std::string ListClass(ITypeInfo& info, const TYPEATTR& attributes) {
  std::string text;
  for (UINT i = 0; i < attributes.cImplTypes; ++i) {
    HREFTYPE reference = 0;
    INT flags = 0;
    ComPtr<ITypeInfo> face;
    info.GetRefTypeOfImplType(i, &reference);
    info.GetImplTypeFlags(i, &flags);
    info.GetRefTypeInfo(reference, &face);
    text += "  ";
    if (flags & IMPLTYPEFLAG_FDEFAULT) text += "default ";
    if (flags & IMPLTYPEFLAG_FSOURCE) text += "source ";
    text += Joined({face ? NameOf(*face.Get()) : "unresolved", "\n"});
  }
  return text;
}

std::string ListFunctions(ITypeInfo& info, const TYPEATTR& attributes) {
  std::string text;
  for (UINT i = 0; i < attributes.cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    if (FAILED(info.GetFuncDesc(i, &function))) continue;
    // The dispatch view of an event interface shows those of IUnknown and IDispatch, too.
    const bool isInherited = function->memid >= 0x60000000 && function->memid < 0x60020000;
    if (!isInherited) text += FunctionLine(info, *function);
    info.ReleaseFuncDesc(function);
  }
  return text;
}

std::string ListType(ITypeInfo& info) {
  TYPEATTR* attributes = nullptr;
  if (FAILED(info.GetTypeAttr(&attributes))) return "unreadable\n";
  const bool isClass = attributes->typekind == TKIND_COCLASS;
  const char* kind = isClass ? "class " : attributes->typekind == TKIND_DISPATCH ? "dispatch " : "interface ";
  std::string text =
      Joined({kind, NameOf(info), " ", Text(attributes->guid), " ", std::to_string(attributes->wMajorVerNum),
              ".", std::to_string(attributes->wMinorVerNum), Flags(attributes->wTypeFlags), "\n"});
  text += isClass ? ListClass(info, *attributes) : ListFunctions(info, *attributes);
  info.ReleaseTypeAttr(attributes);
  return text;
}

}  // namespace

std::string ListInterface(ITypeLib& library) {
  TLIBATTR* attributes = nullptr;
  if (FAILED(library.GetLibAttr(&attributes))) return "unreadable\n";
  BSTR name = nullptr;
  library.GetDocumentation(-1, &name, nullptr, nullptr, nullptr);
  std::string text =
      Joined({"library ", Utf8(name), " ", Text(attributes->guid), " ",
              std::to_string(attributes->wMajorVerNum), ".", std::to_string(attributes->wMinorVerNum),
              " lcid ", Hex(static_cast<long>(attributes->lcid)).substr(4), "\n"});
  SysFreeString(name);
  library.ReleaseTLibAttr(attributes);
  for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> info;
    if (FAILED(library.GetTypeInfo(i, &info))) continue;
    // A dual interface shows its vtable through its other face.
    HREFTYPE vtable = 0;
    ComPtr<ITypeInfo> face;
    if (SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &vtable)) &&
        SUCCEEDED(info->GetRefTypeInfo(vtable, &face))) {
      info = face;
    }
    text += Joined({"\n", ListType(*info.Get())});
  }
  return text;
}

}  // namespace qm::tests
