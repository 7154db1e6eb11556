#include "recordfile/file_record_store.h"

#include <gtest/gtest.h>

#include "recordfile/field_list.h"
#include "tests/error_of.h"
#include "tests/fakes/memory_files.h"

namespace qm::recordfile {
namespace {

constexpr std::u16string_view kPath = u"C:\\datos\\perfiles.qmd";

class RecordStoreOnDisk : public testing::Test {
 protected:
  fakes::MemoryFiles files_;
  FileRecordStore store_{files_, u"EMAIL", ParseFieldList(u"Usuario;Perfil")};
};

TEST_F(RecordStoreOnDisk, TakesAMissingFileForAnEmptyOneAndDoesNotMakeIt) {
  store_.Open(kPath, u"");
  store_.SelectKey(2);
  store_.First();
  store_.Next();
  store_.Seek(u"Ventas");
  EXPECT_EQ(store_.Count(), 0);
  EXPECT_EQ(store_.FieldCount(), 2);
  EXPECT_EQ(store_.Position(), 0);
  EXPECT_TRUE(store_.AtEnd());
  store_.Store();
  store_.Close();
  EXPECT_TRUE(files_.contents.empty());
  EXPECT_TRUE(files_.replacements.empty());
}

TEST_F(RecordStoreOnDisk, MakesAMissingFileWhenARecordIsStored) {
  store_.Open(kPath, u"");
  store_.Add();
  store_.Write(2, u"Ventas");
  store_.Add();
  store_.Write(1, u"ana");
  store_.Write(2, u"Oficina");
  store_.Store();

  RecordFile read(files_);
  read.Open(kPath, u"");
  EXPECT_EQ(read.TableName(), u"EMAIL");
  EXPECT_EQ(read.Count(), 2);
  EXPECT_EQ(read.Value(2), u"Ventas");
  read.Next();
  EXPECT_EQ(read.Value(1), u"ana");
}

TEST_F(RecordStoreOnDisk, LeavesNothingOfARecordThatWasNotStored) {
  store_.Open(kPath, u"");
  store_.Add();
  store_.Close();
  store_.Open(kPath, u"");
  store_.Store();
  EXPECT_TRUE(files_.contents.empty());
}

TEST_F(RecordStoreOnDisk, WalksAnExistingFileByItsKey) {
  RecordFile made(files_);
  made.Create(kPath, u"", u"EMAIL", ParseFieldList(u"Usuario;Perfil;Otro"));
  for (const std::u16string_view name : {u"Ventas", u"Almacén"}) {
    made.Add();
    made.Write(2, name);
  }
  made.Store();

  store_.Open(u"perfiles.qmd", u"C:\\datos");
  store_.SelectKey(2);
  store_.First();
  EXPECT_EQ(store_.Value(2), u"Almacén");
  EXPECT_EQ(store_.FieldCount(), 3);
  store_.Seek(u"ventas");
  EXPECT_EQ(store_.Position(), 1);
  store_.Seek(u"nadie");
  EXPECT_EQ(store_.Position(), 0);
}

TEST_F(RecordStoreOnDisk, TellsWhatIsNoRecordFile) {
  files_.contents[std::u16string(kPath)] = "no es un archivo de registros";
  EXPECT_EQ(tests::ErrorOf([&] { return store_.Open(kPath, u""), 0; }), 50200);
}

TEST_F(RecordStoreOnDisk, HasNoRecordAndNoFieldsBeyondItsOwnWhileTheFileIsMissing) {
  store_.Open(kPath, u"");
  EXPECT_EQ(tests::ErrorOf([&] { return store_.Value(1); }), 50204);
  EXPECT_EQ(tests::ErrorOf([&] { return store_.Write(1, u""), 0; }), 50204);
  store_.Add();
  EXPECT_EQ(tests::ErrorOf([&] { return store_.Write(3, u""), 0; }), 9);
}

}  // namespace
}  // namespace qm::recordfile
