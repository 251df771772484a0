// Describes the interfaces of the type library in BrivaneVrijeKolom.dll, a line for each member in the order in which
// they are called. DescribeAssembly.cs does the same of the interfaces that the example in C# declares.

#include "component/idl/Windows.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "component/automation/ComPtr.h"

using brivane::component::ComPtr;

namespace {

std::string Narrow(const wchar_t* text) {
  std::string narrow;
  for (; text && *text; ++text) narrow += static_cast<char>(*text);
  return narrow;
}

std::string NameOf(ITypeInfo& info, MEMBERID member) {
  BSTR name = nullptr;
  info.GetDocumentation(member, &name, nullptr, nullptr, nullptr);
  const std::string text = Narrow(name);
  SysFreeString(name);
  return text;
}

std::string TypeOf(ITypeInfo& info, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_I2: return "short";
    case VT_I4: return "long";
    case VT_UI4: return "color";
    case VT_R8: return "double";
    case VT_BOOL: return "boolean";
    case VT_BSTR: return "string";
    case VT_DISPATCH: return "dispatch";
    case VT_VARIANT: return "variant";
    case VT_VOID: return "void";
    case VT_HRESULT: return "hresult";
    case VT_PTR: {
      const std::string pointed = TypeOf(info, *type.lptdesc);
      // An object is a pointer anyway.
      return std::isupper(static_cast<unsigned char>(pointed.front())) ? pointed : pointed + "*";
    }
    case VT_USERDEFINED: {
      ComPtr<ITypeInfo> used;
      if (FAILED(info.GetRefTypeInfo(type.hreftype, used.Put()))) return "?";
      const std::string name = NameOf(*used.Get(), MEMBERID_NIL);
      return name == "OLE_COLOR" ? "color" : name;
    }
    default: return "vt" + std::to_string(type.vt);
  }
}

std::string KindOf(INVOKEKIND kind) {
  return kind == INVOKE_PROPERTYGET ? "get " : kind == INVOKE_PROPERTYPUT ? "put " : "";
}

void DescribeFunction(ITypeInfo& info, const FUNCDESC& function) {
  std::string arguments;
  std::string result = function.funckind == FUNC_DISPATCH ? TypeOf(info, function.elemdescFunc.tdesc) : "void";
  for (SHORT i = 0; i < function.cParams; ++i) {
    const ELEMDESC& argument = function.lprgelemdescParam[i];
    const std::string type = TypeOf(info, argument.tdesc);
    if (argument.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) {
      result = type.ends_with('*') ? type.substr(0, type.size() - 1) : type;
      continue;
    }
    arguments += (arguments.empty() ? "" : ", ") + type;
    if (argument.paramdesc.wParamFlags & PARAMFLAG_FOPT) arguments += " or none";
  }
  std::printf("  %ld %s%s(%s): %s\n", function.memid, KindOf(function.invkind).c_str(),
              NameOf(info, function.memid).c_str(), arguments.c_str(), result.c_str());
}

/// The functions of its own in the order of their places; those of IDispatch come before them.
void DescribeInterface(ITypeInfo& info, const TYPEATTR& attributes) {
  wchar_t id[40]{};
  StringFromGUID2(attributes.guid, id, 40);
  std::printf("%s %s %s\n", NameOf(info, MEMBERID_NIL).c_str(), Narrow(id).c_str(),
              attributes.wTypeFlags & TYPEFLAG_FDUAL ? "dual" : "dispatch");
  std::vector<FUNCDESC*> functions;
  for (UINT i = 0; i < attributes.cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    if (SUCCEEDED(info.GetFuncDesc(i, &function))) functions.push_back(function);
  }
  std::stable_sort(functions.begin(), functions.end(), [](auto* one, auto* other) { return one->oVft < other->oVft; });
  for (FUNCDESC* function : functions) {
    // A dual interface lists those of IDispatch itself.
    if (function->memid >= 0x60000000) continue;
    DescribeFunction(info, *function);
    info.ReleaseFuncDesc(function);
  }
}

}  // namespace

int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  ComPtr<ITypeLib> library;
  const std::wstring file = (std::filesystem::current_path() / L"BrivaneVrijeKolom.dll").wstring();
  if (FAILED(LoadTypeLibEx(file.c_str(), REGKIND_NONE, library.Put()))) return 1;
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> info;
    library->GetTypeInfo(i, info.Put());
    TYPEATTR* attributes = nullptr;
    info->GetTypeAttr(&attributes);
    ComPtr<ITypeInfo> face = info;
    // A dual interface's own half has the places of its functions.
    HREFTYPE half = 0;
    if (attributes->typekind == TKIND_DISPATCH && attributes->wTypeFlags & TYPEFLAG_FDUAL &&
        SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &half))) {
      info->GetRefTypeInfo(half, face.Put());
      info->ReleaseTypeAttr(attributes);
      face->GetTypeAttr(&attributes);
      DescribeInterface(*face.Get(), *attributes);
      face->ReleaseTypeAttr(attributes);
      continue;
    }
    if (attributes->typekind == TKIND_DISPATCH || attributes->typekind == TKIND_INTERFACE)
      DescribeInterface(*info.Get(), *attributes);
    info->ReleaseTypeAttr(attributes);
  }
  return 0;
}
