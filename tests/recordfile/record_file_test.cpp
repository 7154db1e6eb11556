// Record files as hosts use them.

#include "recordfile/record_file.h"

#include <gtest/gtest.h>

#include "recordfile/codec.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "tests/fakes/memory_files.h"

namespace qm::recordfile {
namespace {

constexpr std::u16string_view kPath = u"C:\\Datos\\email00.qmd";

class RecordFiles : public testing::Test {
 protected:
  void CreateProfiles(std::initializer_list<std::u16string_view> names) {
    RecordFile making(files_);
    making.Create(kPath, u"", u"PERFI", {{u"USUARIO", 0}, {u"NOMBRE  ", 0}, {u"ALTA", 5}});
    for (const std::u16string_view name : names) {
      making.Add();
      making.Write(2, name);
    }
    making.Store();
    files_.replacements.clear();
  }

  template <class Body>
  void ExpectError(int number, std::u16string_view description, Body&& body) {
    try {
      body();
      ADD_FAILURE() << "no error, expected " << number;
    } catch (const runtime::RuntimeError& error) {
      EXPECT_EQ(error.number(), number);
      if (!description.empty()) {
        EXPECT_EQ(error.description(), description);
      }
    }
  }

  std::string Walk() {
    std::string names;
    for (; !file_.AtEnd(); file_.Next()) names += runtime::ToUtf8(file_.Value(2)) + "|";
    return names;
  }

  fakes::MemoryFiles files_;
  RecordFile file_{files_};
};

TEST_F(RecordFiles, ANewOneIsOnDiskAtOnceAndHasNoRecords) {
  file_.Create(kPath, u"", u"PERFI", {{u"A", 5}});
  EXPECT_EQ(files_.replacements.size(), 1U);
  EXPECT_EQ(file_.Count(), 0);
  EXPECT_TRUE(file_.AtEnd());
  EXPECT_EQ(file_.Position(), 0);
  RecordFile again(files_);
  again.Open(kPath, u"");
  EXPECT_EQ(again.TableName(), u"PERFI");
  EXPECT_EQ(again.FieldCount(), 1);
  EXPECT_EQ(again.Field(1).name, u"A");
  EXPECT_EQ(again.Field(1).type, 5);
  EXPECT_EQ(again.Count(), 0);
}

TEST_F(RecordFiles, AreNotMadeOverAFileThatIsThere) {
  files_.contents.emplace(kPath, "mine");
  ExpectError(58, u"El archivo ya existe", [&] { file_.Create(kPath, u"", u"T", {{u"A", 0}}); });
  EXPECT_EQ(files_.contents.find(kPath)->second, "mine");
  ExpectError(5, u"", [&] { file_.Create(u"C:\\new", u"", u"T", {}); });
}

TEST_F(RecordFiles, AreFoundInTheDirectoryUnlessThePathIsWhole) {
  const std::tuple<const char16_t*, const char16_t*, const char16_t*> rows[] = {
      {u"a.qmd", u"C:\\Datos", u"C:\\Datos\\a.qmd"},
      {u"a.qmd", u"C:\\Datos\\", u"C:\\Datos\\a.qmd"},
      {u"a.qmd", u"", u"a.qmd"},
      {u"D:\\a.qmd", u"C:\\Datos", u"D:\\a.qmd"},
      {u"\\a.qmd", u"C:\\Datos", u"\\a.qmd"},
      {u"\\\\server\\a.qmd", u"C:\\Datos", u"\\\\server\\a.qmd"},
      {u"sub\\a.qmd", u"C:\\Datos", u"C:\\Datos\\sub\\a.qmd"},
  };
  for (const auto& [path, directory, full] : rows) {
    files_.contents.clear();
    file_.Create(path, directory, u"T", {{u"A", 0}});
    EXPECT_TRUE(files_.Exists(full)) << runtime::ToUtf8(full);
  }
}

TEST_F(RecordFiles, OpenOnTheirFirstRecordInTheOrderOfTheFile) {
  CreateProfiles({u"Ventas", u"Oficina", u"almacén"});
  file_.Open(kPath, u"");
  EXPECT_EQ(file_.Count(), 3);
  EXPECT_EQ(file_.Position(), 1);
  EXPECT_EQ(Walk(), "Ventas|Oficina|almacén|");
  EXPECT_EQ(file_.Position(), 0);
  file_.Next();  // past the end it stays there
  EXPECT_TRUE(file_.AtEnd());
  file_.First();
  EXPECT_EQ(file_.Value(2), u"Ventas");
}

TEST_F(RecordFiles, AreWalkedInTheOrderOfAKeyWithoutCaseAndOuterBlanks) {
  CreateProfiles({u"Ventas", u"  oficina", u"Almacén", u"OFICINA", u"almacen"});
  file_.Open(kPath, u"");
  file_.SelectKey(2);
  EXPECT_EQ(file_.Position(), 1);  // the record stays, the order changes
  file_.First();
  EXPECT_EQ(Walk(), "almacen|Almacén|  oficina|OFICINA|Ventas|");
  file_.SelectKey(0);
  file_.First();
  EXPECT_EQ(Walk(), "Ventas|  oficina|Almacén|OFICINA|almacen|");
}

TEST_F(RecordFiles, SeekARecordByItsKeyAndTellItsPositionInTheFile) {
  CreateProfiles({u"Ventas", u"Oficina", u"VENTAS", u"Almacén  "});
  file_.Open(kPath, u"");
  file_.SelectKey(2);
  const std::pair<const char16_t*, int> rows[] = {
      {u"Ventas", 1},  {u"VENTAS", 3}, {u"ventas", 1}, {u" oficina ", 2},
      {u"ALMACÉN", 4}, {u"Venta", 0},  {u"", 0},       {u"Zaragoza", 0},
  };
  for (const auto& [key, position] : rows) {
    file_.Seek(key);
    EXPECT_EQ(file_.Position(), position) << runtime::ToUtf8(key);
    EXPECT_EQ(file_.AtEnd(), position == 0);
  }
  ExpectError(50204, u"No hay ningún registro actual", [&] { static_cast<void>(file_.Value(2)); });
}

TEST_F(RecordFiles, SeekNothingWithoutAKey) {
  CreateProfiles({u"Ventas"});
  file_.Open(kPath, u"");
  ExpectError(50206, u"No hay ninguna clave activa", [&] { file_.Seek(u"Ventas"); });
  ExpectError(9, u"", [&] { file_.SelectKey(4); });
  ExpectError(9, u"", [&] { file_.SelectKey(-1); });
  EXPECT_EQ(file_.Position(), 1);
}

TEST_F(RecordFiles, StoreAnAddedRecordAtTheirEndAndStandOnIt) {
  CreateProfiles({u"Ventas"});
  file_.Open(kPath, u"");
  file_.SelectKey(2);
  file_.Add();
  EXPECT_EQ(file_.Count(), 1);
  EXPECT_EQ(file_.Value(2), u"");
  file_.Write(1, u"  ana ");
  file_.Write(2, u"Almacén");
  EXPECT_EQ(file_.Value(2), u"Almacén");
  EXPECT_TRUE(files_.replacements.empty());
  file_.Store();
  EXPECT_EQ(files_.replacements.size(), 1U);
  EXPECT_EQ(file_.Position(), 2);
  EXPECT_EQ(file_.Value(1), u"  ana ");  // kept as written
  file_.First();
  EXPECT_EQ(Walk(), "Almacén|Ventas|");
  RecordFile again(files_);
  again.Open(kPath, u"");
  EXPECT_EQ(again.Count(), 2);
}

TEST_F(RecordFiles, StoreManyAddedRecordsWithOneReplacement) {
  CreateProfiles({});
  file_.Open(kPath, u"");
  for (const char16_t* name : {u"1", u"2", u"3"}) {
    file_.Add();
    file_.Write(2, name);
  }
  file_.Store();
  EXPECT_EQ(files_.replacements.size(), 1U);
  EXPECT_EQ(file_.Position(), 3);
  file_.First();
  EXPECT_EQ(Walk(), "1|2|3|");
}

TEST_F(RecordFiles, ChangeTheCurrentRecordWhenNoneWasAdded) {
  CreateProfiles({u"Ventas", u"Oficina"});
  file_.Open(kPath, u"");
  file_.SelectKey(2);
  file_.Seek(u"oficina");
  file_.Write(2, u"Zaragoza");
  file_.Store();
  EXPECT_EQ(file_.Position(), 2);
  file_.Next();
  EXPECT_TRUE(file_.AtEnd());  // it goes last in the order of the key now
  file_.SelectKey(0);
  file_.First();
  EXPECT_EQ(Walk(), "Ventas|Zaragoza|");
  ExpectError(50204, u"", [&] { file_.Write(2, u"x"); });
}

TEST_F(RecordFiles, LetNobodyMoveAwayFromWhatIsNotStored) {
  CreateProfiles({u"Ventas"});
  file_.Open(kPath, u"");
  file_.SelectKey(2);
  file_.Write(2, u"Otra");
  for (auto move : {+[](RecordFile& file) { file.First(); }, +[](RecordFile& file) { file.Next(); },
                    +[](RecordFile& file) { file.Seek(u"Ventas"); }}) {
    ExpectError(50205, u"Hay registros sin guardar", [&] { move(file_); });
  }
  file_.Close();
  file_.Open(kPath, u"");
  EXPECT_EQ(Walk(), "Ventas|");
  EXPECT_TRUE(files_.replacements.empty());
}

TEST_F(RecordFiles, StoreNothingWhenNothingWasWritten) {
  CreateProfiles({u"Ventas"});
  file_.Open(kPath, u"");
  file_.Store();
  EXPECT_TRUE(files_.replacements.empty());
}

TEST_F(RecordFiles, KeepWhatCouldNotBeStoredForAnotherTry) {
  CreateProfiles({u"Ventas"});
  const std::string before = files_.contents.find(kPath)->second;
  file_.Open(kPath, u"");
  file_.Add();
  file_.Write(2, u"Oficina");
  files_.failReplaceWith = runtime::ErrorNumber::DiskFull;
  ExpectError(61, u"Disco lleno", [&] { file_.Store(); });
  EXPECT_EQ(files_.contents.find(kPath)->second, before);
  EXPECT_EQ(file_.Count(), 1);
  files_.failReplaceWith.reset();
  file_.Store();
  EXPECT_EQ(file_.Count(), 2);
}

TEST_F(RecordFiles, AreNotStoredOverWhatAnotherHostStoredMeanwhile) {
  CreateProfiles({u"Ventas"});
  RecordFile other(files_);
  file_.Open(kPath, u"");
  other.Open(kPath, u"");
  other.Add();
  other.Write(2, u"Ajena");
  other.Store();
  file_.Add();
  ExpectError(50207, u"El archivo de registros ha cambiado desde que se abrió: C:\\Datos\\email00.qmd",
              [&] { file_.Store(); });
  file_.Open(kPath, u"");
  EXPECT_EQ(Walk(), "Ventas|Ajena|");
  files_.contents.clear();
  file_.Add();
  ExpectError(53, u"", [&] { file_.Store(); });
  EXPECT_TRUE(files_.contents.empty());
}

TEST_F(RecordFiles, ThatAreNoneOrDamagedAreRefusedByNameAndLeftAsTheyAre) {
  CreateProfiles({u"Ventas"});
  const std::string good = files_.contents.find(kPath)->second;
  std::string later = good;
  later[8] = 9;
  const std::tuple<std::string, int, const char16_t*> rows[] = {
      {"<Modelos/>", 50200, u"No es un archivo de registros: C:\\Datos\\email00.qmd"},
      {good.substr(0, good.size() - 1), 50201,
       u"El archivo de registros está dañado: C:\\Datos\\email00.qmd"},
      {"", 50201, u"El archivo de registros está dañado: C:\\Datos\\email00.qmd"},
      {later, 50202, u"El archivo de registros es de una versión posterior: C:\\Datos\\email00.qmd"},
  };
  for (const auto& [bytes, number, description] : rows) {
    files_.contents.find(kPath)->second = bytes;
    ExpectError(number, description, [&] { file_.Open(kPath, u""); });
    EXPECT_EQ(files_.contents.find(kPath)->second, bytes);
  }
  ExpectError(53, u"Archivo no encontrado", [&] { file_.Open(u"C:\\none", u""); });
  EXPECT_TRUE(files_.replacements.empty());
}

TEST_F(RecordFiles, ThatCannotBeOpenedLeaveTheOpenOneOpen) {
  CreateProfiles({u"Ventas"});
  file_.Open(kPath, u"");
  ExpectError(53, u"", [&] { file_.Open(u"C:\\none", u""); });
  EXPECT_EQ(file_.Value(2), u"Ventas");
}

TEST_F(RecordFiles, KnowOnlyTheirOwnFields) {
  CreateProfiles({u"Ventas"});
  file_.Open(kPath, u"");
  EXPECT_EQ(file_.Field(2).name, u"NOMBRE  ");
  for (const int number : {0, 4, -1}) {
    ExpectError(9, u"Subíndice fuera de rango", [&] { static_cast<void>(file_.Value(number)); });
    ExpectError(9, u"", [&] { static_cast<void>(file_.Field(number)); });
    ExpectError(9, u"", [&] { file_.Write(number, u"x"); });
  }
}

TEST_F(RecordFiles, DoNothingUntilOneIsOpen) {
  ExpectError(50203, u"No hay ningún archivo de registros abierto",
              [&] { static_cast<void>(file_.AtEnd()); });
  ExpectError(50203, u"", [&] { static_cast<void>(file_.Count()); });
  ExpectError(50203, u"", [&] { file_.Store(); });
  ExpectError(50203, u"", [&] { file_.Add(); });
  file_.Close();
  CreateProfiles({u"Ventas"});
  file_.Open(kPath, u"");
  file_.Close();
  ExpectError(50203, u"", [&] { file_.First(); });
}

}  // namespace
}  // namespace qm::recordfile
