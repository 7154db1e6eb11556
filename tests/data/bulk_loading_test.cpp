#include "data/bulk_loading.h"

#include <gmock/gmock.h>

#include "data/value_lookup.h"
#include "runtime/error.h"
#include "tests/data/definition_bytes.h"
#include "tests/error_of.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recorded_record_file.h"
#include "tests/fakes/scripted_prompts.h"

namespace qm::data {

bool operator==(const Cell& a, const Cell& b) {
  return a.tabla == b.tabla && a.campo == b.campo && a.valor == b.valor && a.tipo == b.tipo;
}

void PrintTo(const Cell& cell, std::ostream* out) {
  *out << testing::PrintToString(cell.tabla) << " " << testing::PrintToString(cell.campo) << " = "
       << testing::PrintToString(cell.valor) << " of type " << cell.tipo;
}

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using tests::DefinitionBytes;
using tests::ErrorOf;

// Values "C(file, field)" and types file * 100 + field, up to the bounds.
class NumberedArrays : public RecordArrays {
 public:
  std::int16_t lastFile = 3;
  std::int16_t lastField = 9;

  std::u16string Value(std::int16_t file, std::int16_t field) override {
    Check(file, field);
    std::u16string text = u"C(0, 0)";
    text[2] = static_cast<char16_t>(u'0' + file);
    text[5] = static_cast<char16_t>(u'0' + field);
    return text;
  }
  std::int16_t Type(std::int16_t file, std::int16_t field) override {
    Check(file, field);
    return static_cast<std::int16_t>(file * 100 + field);
  }

 private:
  void Check(std::int16_t file, std::int16_t field) const {
    if (file < 0 || file > lastFile || field < 1 || field > lastField)
      throw runtime::RuntimeError(runtime::ErrorNumber::SubscriptOutOfRange);
  }
};

constexpr std::u16string_view kTable = u"C:\\DATOS\\CLIEN";

struct LoadingFromArrays : testing::Test {
  PrintJob job;
  NumberedArrays arrays;
  fakes::MemoryFiles files;

  LoadingFromArrays() {
    files.contents[u"C:\\DATOS\\CLIEN.Qma"] = DefinitionBytes("02", "Clientes", {"NOMBRE", "NIF"});
  }
  void Load(std::int16_t file, std::u16string_view table = kTable) {
    AsignarDatosTabla(job, table, file, arrays, files);
  }
};

TEST_F(LoadingFromArrays, NamesEachValueByItsFieldAndTheTablesTag) {
  Load(2);
  EXPECT_THAT(job.cells, ElementsAre(Cell{u"C:\\DATOS\\CLIEN", u"NOMBRE (CLIEN)", u"C(2, 1)", 201},
                                     Cell{u"C:\\DATOS\\CLIEN", u"NIF (CLIEN)", u"C(2, 2)", 202}));
}

TEST_F(LoadingFromArrays, ASecondRecordTakesTheFirstOnesPlace) {
  Load(2);
  Load(3);
  EXPECT_THAT(job.cells, ElementsAre(Cell{u"C:\\DATOS\\CLIEN", u"NOMBRE (CLIEN)", u"C(3, 1)", 301},
                                     Cell{u"C:\\DATOS\\CLIEN", u"NIF (CLIEN)", u"C(3, 2)", 302}));
}

TEST_F(LoadingFromArrays, RemovesCellsOfExactlyThisTableOnly) {
  const Cell other{u"C:\\datos\\clien", u"NIF (clien)", u"x", 0};
  job.cells = {{u"C:\\DATOS\\CLIEN", u"A", u"1", 0}, other, {u"C:\\DATOS\\CLIEN", u"B", u"2", 0}};
  files.contents.clear();
  Load(2);
  EXPECT_THAT(job.cells, ElementsAre(other));
}

TEST_F(LoadingFromArrays, AShortTablePathIsTheTagAsAWhole) {
  files.contents[u"CLI.Qma"] = DefinitionBytes("01", "", {"NIF"});
  Load(1, u"CLI");
  EXPECT_THAT(job.cells, ElementsAre(Cell{u"CLI", u"NIF (CLI)", u"C(1, 1)", 101}));
}

TEST_F(LoadingFromArrays, AMissingDefinitionLoadsNothingRemovesTheOldCellsAndLeavesAnEmptyFile) {
  Load(2);
  files.contents.clear();
  Load(2);
  EXPECT_THAT(job.cells, IsEmpty());
  EXPECT_EQ(files.contents.at(u"C:\\DATOS\\CLIEN.Qma"), "");
}

TEST_F(LoadingFromArrays, WithoutNamesTheArraysAreNotLookedAt) {
  files.contents[u"C:\\DATOS\\CLIEN.Qma"] = "";
  EXPECT_EQ(ErrorOf([&] { Load(99); }), 0);
}

TEST_F(LoadingFromArrays, AnIndexOutsideTheArraysIsError9AndKeepsWhatWasLoaded) {
  arrays.lastField = 1;
  EXPECT_EQ(ErrorOf([&] { Load(2); }), 9);
  EXPECT_THAT(job.cells, ElementsAre(Cell{u"C:\\DATOS\\CLIEN", u"NOMBRE (CLIEN)", u"C(2, 1)", 201}));
  EXPECT_EQ(ErrorOf([&] { Load(4); }), 9);
  EXPECT_THAT(job.cells, IsEmpty());
}

TEST_F(LoadingFromArrays, ADefinitionCutShortIsError62AfterTheOldCellsAreGone) {
  Load(2);
  files.contents[u"C:\\DATOS\\CLIEN.Qma"].resize(90);
  EXPECT_EQ(ErrorOf([&] { Load(2); }), 62);
  EXPECT_THAT(job.cells, IsEmpty());
}

TEST_F(LoadingFromArrays, AFolderThatDoesNotExistIsError76AfterTheOldCellsAreGone) {
  Load(2);
  files.failReadWith = runtime::ErrorNumber::PathNotFound;
  EXPECT_EQ(ErrorOf([&] { Load(2); }), 76);
  EXPECT_THAT(job.cells, IsEmpty());
}

struct LoadingRecords : testing::Test {
  PrintJob job;
  fakes::RecordedRecordFile records;
  fakes::FixedClock clock;
  fakes::ScriptedPrompts prompts;
  runtime::Locale locale = runtime::Locale::Spanish();

  LoadingRecords() {
    records.columns = {{u"NOMBRE   ", {0}}, {u" ALTA", {5}}};
    records.records = {{u"Peña", u"151231"}, {u"Gil", u"B60101"}, {u"Sanz", u""}};
  }
  void LoadOne() { AsignarDatosTablaQmF(job, records, clock); }
  void LoadAll() { AsignarDatosTablaQmF2(job, records, clock); }
  std::u16string Printed(std::u16string_view name) {
    std::int16_t kind = 0;
    return ValueLookup(job, prompts, clock, locale).ObtenerValor(name, 1, kind);
  }
  std::u16string PrintedInRow(std::u16string_view name, int row) {
    std::int16_t kind = 0;
    return ValueLookup(job, prompts, clock, locale).ObtenerValorFila(name, 1, kind, row);
  }
};

TEST_F(LoadingRecords, TheCurrentRecordIsAskedForInThisOrder) {
  LoadOne();
  EXPECT_EQ(records.log,
            "NumeroCampos\n"
            "TipoCampo 1\nNombreDeTabla\nNombreDelCampo 1\nNombreDeTabla\nValorCampo 1\nTipoCampo 1\n"
            "TipoCampo 2\nNombreDeTabla\nNombreDelCampo 2\nNombreDeTabla\nValorCampo 2\nTipoCampo 2\n");
}

TEST_F(LoadingRecords, TheCurrentRecordBecomesCellsWithItsDatesNormalized) {
  LoadOne();
  EXPECT_THAT(job.cells, ElementsAre(Cell{u"CLIEN", u"NOMBRE (CLIEN)", u"Peña", 0},
                                     Cell{u"CLIEN", u"ALTA (CLIEN)", u"31/12/15", 5}));
  EXPECT_EQ(records.position, 0U);
}

TEST_F(LoadingRecords, ADateIsNormalizedAgainWhenItIsPrinted) {
  LoadOne();
  EXPECT_EQ(Printed(u"ALTA (CLIEN)"), u"B51231");
}

TEST_F(LoadingRecords, ANineCharacterDateTakesItsCenturyFromTheClock) {
  records.records = {{u"", u"12/31/15 "}};
  clock = fakes::FixedClock({2026, 1, 1, 0, 0, 0});
  LoadOne();
  EXPECT_EQ(job.cells[1].valor, u"31/12/2015");
}

TEST_F(LoadingRecords, TheFirstTypeDecidesOnTheDateAndTheSecondIsStored) {
  records.columns = {{u"A", {5, 2}}, {u"B", {2, 5}}};
  records.records = {{u"151231", u"151231"}};
  LoadOne();
  EXPECT_THAT(job.cells, ElementsAre(Cell{u"CLIEN", u"A (CLIEN)", u"31/12/15", 2},
                                     Cell{u"CLIEN", u"B (CLIEN)", u"151231", 5}));
}

TEST_F(LoadingRecords, TheFirstTableNameIsTheTableAndTheSecondTheTag) {
  records.columns = {{u"A", {0}}};
  records.tables = {u"primera", u"segunda"};
  LoadOne();
  EXPECT_THAT(job.cells, ElementsAre(Cell{u"primera", u"A (segunda)", u"Peña", 0}));
}

TEST_F(LoadingRecords, TwoRecordsAccumulateAndTheFirstIsPrinted) {
  LoadOne();
  records.Siguiente();
  LoadOne();
  EXPECT_THAT(job.cells, SizeIs(4));
  EXPECT_EQ(job.cells[2], (Cell{u"CLIEN", u"NOMBRE (CLIEN)", u"Gil", 0}));
  EXPECT_EQ(Printed(u"nombre (clien)"), u"Peña");
}

TEST_F(LoadingRecords, ARecordWithoutFieldsLoadsNothing) {
  records.columns.clear();
  LoadOne();
  EXPECT_EQ(records.log, "NumeroCampos\n");
  EXPECT_THAT(job.cells, IsEmpty());
}

TEST_F(LoadingRecords, ANullValueIsError94AndKeepsWhatWasLoaded) {
  records.records = {{u"Peña", std::nullopt}};
  EXPECT_EQ(ErrorOf([&] { LoadOne(); }), 94);
  EXPECT_THAT(job.cells, SizeIs(1));
}

TEST_F(LoadingRecords, AllAreAskedForInThisOrder) {
  records.columns = {{u"NOMBRE", {0}}};
  records.position = 1;
  LoadAll();
  EXPECT_EQ(records.log,
            "NumeroRegistros\n"
            "FinArchivo\nNumeroCampos\n"
            "TipoCampo 1\nNombreDeTabla\nNombreDelCampo 1\nNombreDeTabla\nValorCampo 1\nTipoCampo 1\n"
            "Siguiente\n"
            "FinArchivo\nNumeroCampos\n"
            "TipoCampo 1\nNombreDeTabla\nNombreDelCampo 1\nNombreDeTabla\nValorCampo 1\nTipoCampo 1\n"
            "Siguiente\n"
            "FinArchivo\n");
}

TEST_F(LoadingRecords, AllFromTheFirstFillARowEachAndTheFileIsLeftAtItsEnd) {
  job.cells = {{u"T", u"C", u"V", 0}};
  LoadAll();
  ASSERT_THAT(job.rows, SizeIs(4));
  EXPECT_THAT(job.rows[0].value(), ElementsAre(Cell{u"CLIEN", u"NOMBRE (CLIEN)", u"Peña", 0},
                                               Cell{u"CLIEN", u"ALTA (CLIEN)", u"31/12/15", 5}));
  EXPECT_THAT(job.rows[1].value(), ElementsAre(Cell{u"CLIEN", u"NOMBRE (CLIEN)", u"Gil", 0},
                                               Cell{u"CLIEN", u"ALTA (CLIEN)", u"01/01/16", 5}));
  EXPECT_THAT(job.rows[2].value(), ElementsAre(Cell{u"CLIEN", u"NOMBRE (CLIEN)", u"Sanz", 0},
                                               Cell{u"CLIEN", u"ALTA (CLIEN)", u"", 5}));
  EXPECT_FALSE(job.rows[3]);
  EXPECT_TRUE(records.FinArchivo());
  EXPECT_THAT(job.cells, ElementsAre(Cell{u"T", u"C", u"V", 0}));
  EXPECT_EQ(PrintedInRow(u"nombre (clien)", 1), u"Gil");
}

TEST_F(LoadingRecords, AllFromTheThirdFillTheFirstRowOnly) {
  records.position = 2;
  LoadAll();
  ASSERT_THAT(job.rows, SizeIs(4));
  EXPECT_EQ(job.rows[0].value()[0].valor, u"Sanz");
  EXPECT_FALSE(job.rows[1]);
}

TEST_F(LoadingRecords, AtTheEndOfTheFileThereAreSlotsAndNoRows) {
  records.position = 3;
  LoadAll();
  EXPECT_THAT(job.rows, SizeIs(4));
  EXPECT_FALSE(job.rows[0]);
}

TEST_F(LoadingRecords, AllAgainDropTheRowsOfBefore) {
  LoadAll();
  records.position = 2;
  records.counted = 1;
  LoadAll();
  ASSERT_THAT(job.rows, SizeIs(2));
  EXPECT_EQ(job.rows[0].value()[0].valor, u"Sanz");
  EXPECT_FALSE(job.rows[1]);
}

TEST_F(LoadingRecords, RecordsWithoutFieldsLeaveTheirSlotsUnfilled) {
  records.columns.clear();
  LoadAll();
  EXPECT_THAT(job.rows, SizeIs(4));
  EXPECT_FALSE(job.rows[0]);
  EXPECT_EQ(records.position, 3U);
}

// There is one slot more than records were counted, so the second one that was not counted is too many.
TEST_F(LoadingRecords, MoreRecordsThanCountedIsError9AndKeepsWhatWasLoaded) {
  records.counted = 1;
  EXPECT_EQ(ErrorOf([&] { LoadAll(); }), 9);
  ASSERT_THAT(job.rows, SizeIs(2));
  EXPECT_EQ(job.rows[1].value()[0].valor, u"Gil");
  EXPECT_EQ(records.position, 2U);
}

TEST_F(LoadingRecords, ANegativeCountIsError9) {
  records.counted = -1;
  EXPECT_EQ(ErrorOf([&] { LoadAll(); }), 9);
  EXPECT_EQ(records.log, "NumeroRegistros\n");
}

TEST_F(LoadingRecords, ARowNumberPast32767IsError6AfterRow32767) {
  records.columns = {{u"A", {0}}};
  records.endless = true;
  records.counted = 2'000'000'000;
  EXPECT_EQ(ErrorOf([&] { LoadAll(); }), 6);
  ASSERT_THAT(job.rows, SizeIs(32769));
  EXPECT_EQ(job.rows[32767].value()[0].valor, u"Peña");
  EXPECT_FALSE(job.rows[32768]);
}

TEST_F(LoadingRecords, AFileThatNeverEndsIsError6EvenWithoutFields) {
  records.columns.clear();
  records.endless = true;
  EXPECT_EQ(ErrorOf([&] { LoadAll(); }), 6);
}

TEST_F(LoadingRecords, AFailingCallReachesTheHostUnchangedWhicheverItIs) {
  for (const char* call : {"NumeroRegistros", "FinArchivo", "NumeroCampos", "TipoCampo 2", "NombreDeTabla",
                           "NombreDelCampo 2", "ValorCampo 2", "Siguiente"}) {
    records.failingCall = call;
    records.position = 0;
    try {
      LoadAll();
      ADD_FAILURE() << call;
    } catch (const runtime::RuntimeError& error) {
      EXPECT_EQ(error.number(), 1001) << call;
      EXPECT_EQ(error.description(), u"error de la aplicación") << call;
    }
  }
}

TEST_F(LoadingRecords, AFailureWithinARowKeepsItsFirstCells) {
  records.failingCall = "ValorCampo 2";
  EXPECT_EQ(ErrorOf([&] { LoadAll(); }), 1001);
  EXPECT_THAT(job.rows[0].value(), ElementsAre(Cell{u"CLIEN", u"NOMBRE (CLIEN)", u"Peña", 0}));
  EXPECT_EQ(records.position, 0U);
}

TEST_F(LoadingRecords, AFailureToCountKeepsTheRowsOfBefore) {
  LoadAll();
  records.failingCall = "NumeroRegistros";
  EXPECT_EQ(ErrorOf([&] { LoadAll(); }), 1001);
  EXPECT_THAT(job.rows, SizeIs(4));
  EXPECT_TRUE(job.rows[0]);
}

// A host's object may use the same print job while it is asked for a value.
TEST_F(LoadingRecords, RowsThatAreLoadedMeanwhileDoNotBreakTheLoading) {
  records.onValue = [&] {
    if (records.position == 2) job.rows.clear();
  };
  EXPECT_EQ(ErrorOf([&] { LoadAll(); }), 9);
  EXPECT_THAT(job.rows, IsEmpty());
}

}  // namespace
}  // namespace qm::data
