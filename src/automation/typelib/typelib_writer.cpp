#include "automation/typelib/typelib_writer.h"

#include <oaidl.h>
#include <oleauto.h>
#include <wrl/client.h>

#include <deque>
#include <map>
#include <vector>

#include "automation/typelib/description.h"

namespace qm::automation {

namespace {

using Microsoft::WRL::ComPtr;

void Check(HRESULT result) {
  if (FAILED(result)) throw WriteError(result);
}

// The creating interfaces take texts that they do not change through pointers to non-const.
OLECHAR* Text(std::u16string_view text) {
  return const_cast<OLECHAR*>(reinterpret_cast<const OLECHAR*>(text.data()));
}

INVOKEKIND InvokeKind(Access access) {
  switch (access) {
    case Access::Get:
      return INVOKE_PROPERTYGET;
    case Access::Let:
      return INVOKE_PROPERTYPUT;
    case Access::Set:
      return INVOKE_PROPERTYPUTREF;
    default:
      return INVOKE_FUNC;
  }
}

class LibraryWriter {
 public:
  LibraryWriter(const Library& described, SYSKIND system, const wchar_t* file) {
    Check(CreateTypeLib2(system, file, &library_));
    Check(library_->SetName(Text(described.name)));
    Check(library_->SetGuid(described.id));
    Check(library_->SetVersion(kMajorVersion, kMinorVersion));
    Check(library_->SetLcid(kLibraryLcid));
    Check(library_->SetLibFlags(0));
    ComPtr<ITypeLib> standard;
    Check(LoadTypeLibEx(L"stdole2.tlb", REGKIND_NONE, &standard));
    Check(standard->GetTypeInfoOfGuid(IID_IDispatch, &dispatch_));
  }

  void Import(const Interface& face, ITypeLib& from) {
    ComPtr<ITypeInfo> info;
    Check(from.GetTypeInfoOfGuid(face.id, &info));
    referred_[&face] = info;
  }

  // All interfaces are declared before one is described: their functions refer to each other.
  void Declare(const Interface& face, bool dispatchOnly = false) {
    ComPtr<ICreateTypeInfo> made;
    Check(library_->CreateTypeInfo(Text(face.name), dispatchOnly ? TKIND_DISPATCH : TKIND_INTERFACE, &made));
    Check(made->SetGuid(face.id));
    Check(made->SetVersion(kMajorVersion, kMinorVersion));
    Check(made->SetTypeFlags(dispatchOnly
                                 ? TYPEFLAG_FHIDDEN | TYPEFLAG_FNONEXTENSIBLE | TYPEFLAG_FDISPATCHABLE
                                 : TYPEFLAG_FHIDDEN | TYPEFLAG_FDUAL | TYPEFLAG_FNONEXTENSIBLE |
                                       TYPEFLAG_FOLEAUTOMATION | TYPEFLAG_FDISPATCHABLE));
    Check(made->AddImplType(0, Refer(*made.Get(), dispatch_.Get())));
    made_[&face] = made;
    Check(made.As(&referred_[&face]));
  }

  void Describe(const Interface& face, bool dispatchOnly = false) {
    ICreateTypeInfo& made = *made_.at(&face).Get();
    UINT index = 0;
    ForEachFunction(face,
                    [&](const Function& function) { AddFunction(made, index++, function, dispatchOnly); });
    Check(made.LayOut());
  }

  void AddClass(const Class& declared) {
    ComPtr<ICreateTypeInfo> made;
    Check(library_->CreateTypeInfo(Text(declared.name), TKIND_COCLASS, &made));
    Check(made->SetGuid(declared.id));
    Check(made->SetVersion(kMajorVersion, kMinorVersion));
    Check(made->SetTypeFlags(TYPEFLAG_FCANCREATE));
    Check(made->AddImplType(0, Refer(*made.Get(), referred_.at(declared.face).Get())));
    Check(made->SetImplTypeFlags(0, IMPLTYPEFLAG_FDEFAULT));
    if (declared.events) {
      Check(made->AddImplType(1, Refer(*made.Get(), referred_.at(declared.events).Get())));
      Check(made->SetImplTypeFlags(1, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE));
    }
    Check(made->LayOut());
  }

  void Save() { Check(library_->SaveAllChanges()); }

 private:
  static HREFTYPE Refer(ICreateTypeInfo& from, ITypeInfo* to) {
    HREFTYPE reference = 0;
    Check(from.AddRefTypeInfo(to, &reference));
    return reference;
  }

  // A type and the types it points to, kept until the function is added.
  struct TypeChain {
    std::deque<TYPEDESC> links;

    TYPEDESC Simple(VARTYPE type) {
      TYPEDESC described{};
      described.vt = type;
      return described;
    }
    TYPEDESC To(VARTYPE kind, const TYPEDESC& target) {
      links.push_back(target);
      TYPEDESC described{};
      described.vt = kind;
      described.lptdesc = &links.back();
      return described;
    }
  };

  TYPEDESC Face(ICreateTypeInfo& in, const Interface& face, TypeChain& chain) {
    TYPEDESC described = chain.Simple(VT_USERDEFINED);
    described.hreftype = Refer(in, referred_.at(&face).Get());
    return chain.To(VT_PTR, described);
  }

  TYPEDESC Describe(ICreateTypeInfo& in, Type type, const Interface* object, TypeChain& chain) {
    switch (type) {
      case Type::Text:
        return chain.Simple(VT_BSTR);
      case Type::Integer:
        return chain.Simple(VT_I2);
      case Type::Long:
        return chain.Simple(VT_I4);
      case Type::Boolean:
        return chain.Simple(VT_BOOL);
      case Type::Variant:
        return chain.Simple(VT_VARIANT);
      case Type::Dispatch:
        return chain.Simple(VT_DISPATCH);
      case Type::Object:
        return Face(in, *object, chain);
      case Type::TextArray:
        return chain.To(VT_SAFEARRAY, chain.Simple(VT_BSTR));
      case Type::IntegerArray:
        return chain.To(VT_SAFEARRAY, chain.Simple(VT_I2));
      case Type::None:
        break;
    }
    return chain.Simple(VT_VOID);
  }

  void AddFunction(ICreateTypeInfo& made, UINT index, const Function& function, bool dispatchOnly) {
    const Member& member = *function.member;
    TypeChain chain;
    std::vector<ELEMDESC> parameters;
    std::vector<OLECHAR*> names{Text(member.name)};
    PARAMDESCEX emptyText{};
    emptyText.cBytes = sizeof(emptyText);
    emptyText.varDefaultValue.vt = VT_BSTR;
    emptyText.varDefaultValue.bstrVal = SysAllocString(L"");

    for (std::size_t i = 0; i < member.ParameterCount(); ++i) {
      const Parameter& parameter = member.parameters[i];
      ELEMDESC element{};
      element.tdesc = chain.To(VT_PTR, Describe(made, parameter.type, parameter.object, chain));
      element.paramdesc.wParamFlags = PARAMFLAG_FIN | PARAMFLAG_FOUT;
      if (parameter.optional) {
        element.paramdesc.wParamFlags |= PARAMFLAG_FOPT | PARAMFLAG_FHASDEFAULT;
        element.paramdesc.pparamdescex = &emptyText;
      }
      parameters.push_back(element);
      names.push_back(Text(parameter.name));
    }
    const bool stores = function.access == Access::Let || function.access == Access::Set;
    if (stores) {
      ELEMDESC element{};
      element.tdesc = Describe(made, member.type, member.object, chain);
      element.paramdesc.wParamFlags = PARAMFLAG_FIN;
      parameters.push_back(element);
    } else if (member.type != Type::None) {
      ELEMDESC element{};
      element.tdesc = chain.To(VT_PTR, Describe(made, member.type, member.object, chain));
      element.paramdesc.wParamFlags = PARAMFLAG_FOUT | PARAMFLAG_FRETVAL;
      parameters.push_back(element);
    }

    FUNCDESC described{};
    described.memid = member.dispid;
    described.funckind = dispatchOnly ? FUNC_DISPATCH : FUNC_PUREVIRTUAL;
    described.invkind = InvokeKind(function.access);
    described.callconv = CC_STDCALL;
    described.cParams = static_cast<SHORT>(parameters.size());
    described.cParamsOpt = 0;
    described.lprgelemdescParam = parameters.data();
    described.elemdescFunc.tdesc.vt =
        dispatchOnly ? static_cast<VARTYPE>(VT_VOID) : static_cast<VARTYPE>(VT_HRESULT);
    const HRESULT added = made.AddFuncDesc(index, &described);
    SysFreeString(emptyText.varDefaultValue.bstrVal);
    Check(added);
    Check(made.SetFuncAndParamNames(index, names.data(), static_cast<UINT>(names.size())));
  }

  ComPtr<ICreateTypeLib2> library_;
  ComPtr<ITypeInfo> dispatch_;
  std::map<const Interface*, ComPtr<ICreateTypeInfo>> made_;
  std::map<const Interface*, ComPtr<ITypeInfo>> referred_;
};

}  // namespace

void WriteTypeLibrary(const Library& described, SYSKIND system, const wchar_t* file,
                      std::span<const ImportedInterface> imports) {
  LibraryWriter library(described, system, file);
  for (const ImportedInterface& each : imports) {
    ComPtr<ITypeLib> from;
    Check(LoadTypeLibEx(each.file, REGKIND_NONE, &from));
    library.Import(*each.face, *from.Get());
  }
  for (const Class& each : described.classes) {
    library.Declare(*each.face);
    if (each.events) library.Declare(*each.events, true);
  }
  for (const Class& each : described.classes) {
    library.Describe(*each.face);
    if (each.events) library.Describe(*each.events, true);
    library.AddClass(each);
  }
  library.Save();
}

}  // namespace qm::automation
