// The interface is frozen: hosts are compiled against it.

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "api/typelib/generated.h"
#include "tests/api/component.h"
#include "tests/api/interface_listing.h"

namespace qm::tests {
namespace {

constexpr bool kIs64Bit = sizeof(void*) == 8;
constexpr const char* kMend =
    "To mend: take the change back, or, before the first release, run tools/regenerate_interface.sh";

std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Source(const char* path) { return std::string(QM_SOURCE_DIR "/") + path; }

class WorkingFolder {
 public:
  explicit WorkingFolder(const std::string& path) {
    GetCurrentDirectoryA(MAX_PATH, before_);
    SetCurrentDirectoryA(path.c_str());
  }
  ~WorkingFolder() { SetCurrentDirectoryA(before_); }

 private:
  char before_[MAX_PATH];
};

TEST(Interface, OfTheBuiltLibraryIsTheReviewedOne) {
  const Component component;
  // The imported library is found beside its importer, registered or not.
  const WorkingFolder libraries(Source(kIs64Bit ? "src/api/typelib/x64" : "src/api/typelib/x86"));
  ComPtr<ITypeLib> library;
  ASSERT_EQ(LoadTypeLibEx(component.Path().c_str(), REGKIND_NONE, &library), S_OK);
  const std::string listing = ListInterface(*library.Get());
  const std::string golden = Source("tests/golden/interface.txt");
  if (std::getenv("QM_UPDATE_GOLDEN")) std::ofstream(golden, std::ios::binary) << listing;
  EXPECT_EQ(listing, FileText(golden)) << kMend;
}

TEST(Interface, OfTheRecordFileLibraryIsTheReviewedOne) {
  ComPtr<ITypeLib> library;
  const WorkingFolder libraries(Source(kIs64Bit ? "src/api/typelib/x64" : "src/api/typelib/x86"));
  ASSERT_EQ(LoadTypeLibEx(L"QmFile2.tlb", REGKIND_NONE, &library), S_OK);
  const std::string listing = ListInterface(*library.Get());
  const std::string golden = Source("tests/golden/interface_qmfile2.txt");
  if (std::getenv("QM_UPDATE_GOLDEN")) std::ofstream(golden, std::ios::binary) << listing;
  EXPECT_EQ(listing, FileText(golden)) << kMend;
}

TEST(Interface, TextsMadeFromTheTableAreTheKeptOnes) {
  EXPECT_EQ(api::ComponentHeader(), FileText(Source("src/api/typelib/QmModImp3.h"))) << kMend;
  EXPECT_EQ(api::ComponentManifest(true), FileText(Source("packaging/QmModImp3.x64.manifest"))) << kMend;
  EXPECT_EQ(api::ComponentManifest(false), FileText(Source("packaging/QmModImp3.x86.manifest"))) << kMend;
}

#ifdef _WIN64
TEST(Interface, TypeLibrariesMadeFromTheTableAreTheKeptOnesByteForByte) {
  const std::string made = std::string(QM_BINARY_DIR) + "/made-interface";
  CreateDirectoryA(made.c_str(), nullptr);
  {
    const WorkingFolder folder(made);
    api::WriteTypeLibraries();
  }
  for (const char* name : {"x64/QmModImp3.tlb", "x64/QmFile2.tlb", "x86/QmModImp3.tlb", "x86/QmFile2.tlb"}) {
    const std::string kept = FileText(Source("src/api/typelib/") + name);
    EXPECT_FALSE(kept.empty());
    EXPECT_TRUE(FileText(made + "/" + name) == kept) << name << ": " << kMend;
  }
}
#endif

TEST(Interface, TheFileTellsItsVersion) {
  const Component component;
  std::vector<char> block(GetFileVersionInfoSizeW(component.Path().c_str(), nullptr));
  ASSERT_TRUE(
      GetFileVersionInfoW(component.Path().c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
  VS_FIXEDFILEINFO* fixed = nullptr;
  UINT size = 0;
  ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&fixed), &size));
  EXPECT_EQ(fixed->dwFileVersionMS, MAKELONG(0, 1));
  wchar_t* name = nullptr;
  ASSERT_TRUE(VerQueryValueW(block.data(), L"\\StringFileInfo\\0C0A04B0\\FileDescription",
                             reinterpret_cast<void**>(&name), &size));
  EXPECT_STREQ(name, L"Modelos de impresi\u00F3n");
}

TEST(Interface, EveryClassTellsItsTypeAndItsEvents) {
  const Component component;
  const auto form = component.NewPrintForm();
  ComPtr<IProvideClassInfo2> provider;
  ASSERT_EQ(form.As(&provider), S_OK);
  GUID events{};
  EXPECT_EQ(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
  EXPECT_TRUE(IsEqualGUID(events, DIID___PrintForm));
  ComPtr<ITypeInfo> description;
  ASSERT_EQ(provider->GetClassInfo(&description), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(description->GetTypeAttr(&attributes), S_OK);
  EXPECT_TRUE(IsEqualGUID(attributes->guid, CLSID_PrintForm));
  description->ReleaseTypeAttr(attributes);

  UINT count = 0;
  EXPECT_EQ(form->GetTypeInfoCount(&count), S_OK);
  EXPECT_EQ(count, 1u);
  ComPtr<ITypeInfo> face;
  ASSERT_EQ(form->GetTypeInfo(0, 0, &face), S_OK);
  EXPECT_EQ(form->GetTypeInfo(1, 0, face.ReleaseAndGetAddressOf()), DISP_E_BADINDEX);

  const auto campos = component.Create<_Campos>(CLSID_Campos, IID__Campos);
  ASSERT_EQ(campos.As(&provider), S_OK);
  EXPECT_EQ(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), E_FAIL);
}

}  // namespace
}  // namespace qm::tests
