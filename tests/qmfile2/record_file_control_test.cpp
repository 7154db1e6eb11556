// The class QmFileControl2, by its vtable and late-bound.

#include "qmfile2/typelib/QmFile2.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/api/component.h"
#include "tests/platform/win32/scratch_folder.h"

namespace qm::tests {
namespace {

using File = QmFile2::_QmFileControl2;

class RecordFileControl : public testing::Test {
 protected:
  RecordFileControl() : file_(NewFile()), path_(Wide(folder_.File(u"clientes.qmd"))) {}

  ComPtr<File> NewFile() const {
    return library_.Create<File>(QmFile2::CLSID_QmFileControl2, QmFile2::IID__QmFileControl2);
  }
  static std::wstring Wide(const std::u16string& text) { return {text.begin(), text.end()}; }

  HRESULT Crear(const wchar_t* campos = L"NOMBRE;ALTA,5") {
    Bstr path(path_), folder, table(L"CLIEN"), fields(campos);
    return file_->Crear(path.Ref(), folder.Ref(), table.Ref(), fields.Ref());
  }
  HRESULT Abrir(File& file) {
    Bstr path(path_), folder;
    return file.Abrir(path.Ref(), folder.Ref());
  }
  HRESULT Escribir(const wchar_t* text, SHORT field) {
    Bstr value(text);
    return file_->EscribirCampo(value.Ref(), &field);
  }
  static std::wstring Valor(File& file, SHORT field) {
    Value number = Value::Short(field), read;
    return SUCCEEDED(file.ValorCampo(&number, &read)) ? read.Text() : L"failed";
  }

  Component library_{L"QmFile2.dll"};
  platform::win32::ScratchFolder folder_;
  ComPtr<File> file_;
  std::wstring path_;
};

TEST_F(RecordFileControl, AnswersItsEightQuestionsAboutAnOpenFile) {
  ASSERT_EQ(Crear(), S_OK);
  EXPECT_EQ(file_->AñadirRegistro(), S_OK);
  EXPECT_EQ(Escribir(L"Pe\u00F1a", 1), S_OK);
  EXPECT_EQ(Escribir(L"151231", 2), S_OK);
  EXPECT_EQ(file_->Guardar(), S_OK);

  const auto again = NewFile();
  ASSERT_EQ(Abrir(*again.Get()), S_OK);
  SHORT number = 2, type = 0, fields = 0;
  EXPECT_EQ(again->TipoCampo(&number, &type), S_OK);
  EXPECT_EQ(type, 5);
  VARIANT_BOOL atEnd = VARIANT_TRUE;
  EXPECT_EQ(again->FinArchivo(&atEnd), S_OK);
  EXPECT_EQ(atEnd, VARIANT_FALSE);
  LONG records = 0;
  EXPECT_EQ(again->NumeroRegistros(&records), S_OK);
  EXPECT_EQ(records, 1);
  EXPECT_EQ(again->NumeroCampos(&fields), S_OK);
  EXPECT_EQ(fields, 2);
  Bstr name, table;
  EXPECT_EQ(again->NombreDelCampo(&number, name.Out()), S_OK);
  EXPECT_EQ(name.Text(), L"ALTA");
  EXPECT_EQ(again->NombreDeTabla(table.Out()), S_OK);
  EXPECT_EQ(table.Text(), L"CLIEN");
  EXPECT_EQ(Valor(*again.Get(), 1), L"Pe\u00F1a");
  EXPECT_EQ(again->Siguiente(), S_OK);
  EXPECT_EQ(again->FinArchivo(&atEnd), S_OK);
  EXPECT_EQ(atEnd, VARIANT_TRUE);
}

TEST_F(RecordFileControl, TakesAFieldNumberAsAReferenceInAVariant) {
  ASSERT_EQ(Crear(), S_OK);
  file_->AñadirRegistro();
  Escribir(L"x", 2);
  SHORT two = 2;
  Value number, read;
  number.vt = VT_BYREF | VT_I2;
  number.piVal = &two;
  EXPECT_EQ(file_->ValorCampo(&number, &read), S_OK);
  EXPECT_EQ(read.Text(), L"x");
  number.vt = VT_EMPTY;
}

TEST_F(RecordFileControl, ServesLateBoundHosts) {
  auto* file = file_.Get();
  EXPECT_EQ(Call(file, L"crear", {Value(path_), Value(L""), Value(L"T"), Value(L"CLAVE;VALOR,3")}).result,
            S_OK);
  for (const wchar_t* key : {L"b", L"A"}) {
    EXPECT_EQ(Call(file, L"A\u00F1adirRegistro").result, S_OK);
    EXPECT_EQ(Call(file, L"EscribirCampo", {Value(key), Value(1L)}).result, S_OK);
    EXPECT_EQ(Call(file, L"EscribirCampo", {Value(2.5), Value(2L)}).result, S_OK);
  }
  EXPECT_EQ(Call(file, L"Guardar").result, S_OK);
  EXPECT_EQ(Call(file, L"Clave", {Value(1L)}).result, S_OK);
  EXPECT_EQ(Call(file, L"Primero").result, S_OK);
  EXPECT_EQ(Call(file, L"ValorCampo", {Value(1L)}).value.Text(), L"A");
  EXPECT_EQ(Call(file, L"ValorCampo", {Value(L"2")}).value.Text(), L"2,5");
  EXPECT_EQ(Call(file, L"Posicion").value.lVal, 2);
  EXPECT_EQ(Call(file, L"Buscar", {Value(L"c")}).result, S_OK);
  EXPECT_EQ(Call(file, L"Posicion").value.lVal, 0);
  const Outcome none = Call(file, L"ValorCampo", {Value(1L)});
  EXPECT_EQ(none.error, RuntimeResult(50204));
  EXPECT_EQ(none.description, L"No hay ning\u00FAn registro actual");
  EXPECT_EQ(none.source, L"QmFile2");
  EXPECT_EQ(Call(file, L"Cerrar").result, S_OK);
  EXPECT_EQ(Call(file, L"FinArchivo").error, RuntimeResult(50203));
}

TEST_F(RecordFileControl, RefusesADamagedOrForeignFileAndLeavesIt) {
  ASSERT_EQ(Crear(), S_OK);
  file_->Cerrar();
  const std::string narrow(path_.begin(), path_.end());
  const auto bytes = [&] {
    std::ifstream file(narrow, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  };
  std::string changed = bytes();
  ASSERT_GT(changed.size(), 30U);
  changed[30] = '!';
  const std::pair<std::string, int> rows[] = {
      {changed, 50201}, {changed.substr(0, 30), 50201}, {"other", 50200}};
  for (const auto& [content, number] : rows) {
    std::ofstream(narrow, std::ios::binary) << content;
    EXPECT_EQ(Abrir(*file_.Get()), RuntimeResult(number));
    const LastError error = TakeError();
    EXPECT_NE(error.description.find(path_), std::wstring::npos) << number;
    EXPECT_TRUE(IsEqualGUID(error.interfaceId, QmFile2::IID__QmFileControl2));
    EXPECT_EQ(bytes(), content);
  }
  EXPECT_EQ(Crear(), RuntimeResult(58));
  EXPECT_EQ(bytes(), "other");
}

TEST_F(RecordFileControl, RefusesNullPlacesAndWrongNumbers) {
  EXPECT_EQ(file_->Abrir(nullptr, nullptr), RuntimeResult(5));
  EXPECT_EQ(Crear(L"A,fecha"), RuntimeResult(5));
  ASSERT_EQ(Crear(), S_OK);
  EXPECT_EQ(file_->NumeroRegistros(nullptr), RuntimeResult(5));
  EXPECT_EQ(file_->ValorCampo(nullptr, nullptr), RuntimeResult(5));
  EXPECT_EQ(Call(file_.Get(), L"NombreDelCampo", {Value(3L)}).error, RuntimeResult(9));
  EXPECT_EQ(Call(file_.Get(), L"NombreDelCampo", {Value(70000L)}).error, RuntimeResult(6));
  EXPECT_EQ(Call(file_.Get(), L"ValorCampo", {Value(L"uno")}).error, RuntimeResult(13));
  EXPECT_EQ(Call(file_.Get(), L"ValorCampo", {Value::Null()}).error, RuntimeResult(94));
}

TEST_F(RecordFileControl, KeepsTheLibraryInTheProcessWhileItLives) {
  EXPECT_EQ(library_.CanUnloadNow(), S_FALSE);
  ComPtr<IProvideClassInfo2> provider;
  ASSERT_EQ(file_.As(&provider), S_OK);
  ComPtr<ITypeInfo> description;
  ASSERT_EQ(provider->GetClassInfo(&description), S_OK);
  description.Reset();
  provider.Reset();
  file_.Reset();
  EXPECT_EQ(library_.CanUnloadNow(), S_OK);
}

TEST(RecordFileLibrary, TellsItsVersion) {
  const Component library(L"QmFile2.dll");
  std::vector<char> block(GetFileVersionInfoSizeW(library.Path().c_str(), nullptr));
  ASSERT_TRUE(GetFileVersionInfoW(library.Path().c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
  wchar_t* name = nullptr;
  UINT size = 0;
  ASSERT_TRUE(VerQueryValueW(block.data(), L"\\StringFileInfo\\0C0A04B0\\FileDescription",
                             reinterpret_cast<void**>(&name), &size));
  EXPECT_STREQ(name, L"Archivos de registros");
}

}  // namespace
}  // namespace qm::tests
