#include "data/fields.h"

#include <gtest/gtest.h>

namespace qm::data {
namespace {

TEST(AssigningAField, KeepsOneRecordAndReturnsItOnlyWhenAdded) {
  PrintJob job;
  const auto added = AsignarCampo(job, u"TOTAL", u"10");
  ASSERT_TRUE(added);
  EXPECT_EQ(added->campo, u"TOTAL");
  EXPECT_EQ(added->valor, u"10");
  EXPECT_FALSE(AsignarCampo(job, u"TOTAL", u"20"));
  ASSERT_EQ(job.fields.size(), 1U);
  EXPECT_EQ(job.fields[0]->valor, u"20");
  EXPECT_EQ(added->valor, u"20");  // the host's record is the job's own
}

TEST(AssigningAField, TellsNamesApartByCaseAccentsAndBlanks) {
  PrintJob job;
  for (const char16_t* name : {u"TOTAL", u"Total", u"TOTAL ", u"TÓTAL", u""})
    EXPECT_TRUE(AsignarCampo(job, name, u"1"));
  EXPECT_EQ(job.fields.size(), 5U);
  EXPECT_FALSE(AsignarCampo(job, u"", u"vacío"));
  EXPECT_EQ(job.fields[4]->valor, u"vacío");
}

TEST(AssigningAField, SetsTheFirstOfSeveralRecordsOfAName) {
  PrintJob job;
  AñadirCampo(job, u"IVA");
  AñadirCampo(job, u"IVA");
  EXPECT_FALSE(AsignarCampo(job, u"IVA", u"21"));
  EXPECT_EQ(job.fields[0]->valor, u"21");
  EXPECT_EQ(job.fields[1]->valor, u"");
}

TEST(AddingAField, AlwaysAppendsAnEmptyRecordThatTheHostFills) {
  PrintJob job;
  AsignarCampo(job, u"IVA", u"21");
  const auto added = AñadirCampo(job, u"IVA");
  EXPECT_EQ(added->campo, u"IVA");
  EXPECT_EQ(added->valor, u"");
  added->valor = u"10";
  ASSERT_EQ(job.fields.size(), 2U);
  EXPECT_EQ(job.fields[1]->valor, u"10");
}

TEST(AddedRecords, OutliveThePrintJob) {
  std::shared_ptr<Field> field;
  {
    PrintJob job;
    field = AsignarCampo(job, u"CLIENTE", u"García");
  }
  EXPECT_EQ(field->valor, u"García");
}

TEST(AddingATable, AppendsItsNameAlsoWhenItIsThere) {
  PrintJob job;
  EXPECT_EQ(AñadirTabla(job, u"FACTU")->tabla, u"FACTU");
  AñadirTabla(job, u"FACTU");
  EXPECT_EQ(job.tables.size(), 2U);
}

TEST(AddingACell, AppendsTheFourValuesWithoutLookingForADuplicate) {
  PrintJob job;
  AñadirCampoTabla(job, {u"FACTU", u"IMPORTE (FACTU)", u"12.5", 3});
  AñadirCampoTabla(job, {u"FACTU", u"IMPORTE (FACTU)", u"13", 0});
  ASSERT_EQ(job.cells.size(), 2U);
  EXPECT_EQ(job.cells[0].tabla, u"FACTU");
  EXPECT_EQ(job.cells[0].campo, u"IMPORTE (FACTU)");
  EXPECT_EQ(job.cells[0].valor, u"12.5");
  EXPECT_EQ(job.cells[0].tipo, 3);
}

TEST(ANewPrintJob, HoldsNothing) {
  const PrintJob job;
  EXPECT_TRUE(std::holds_alternative<std::monostate>(job.numeroModelo));
  EXPECT_TRUE(job.fields.empty());
  EXPECT_TRUE(job.tables.empty());
  EXPECT_TRUE(job.cells.empty());
  EXPECT_TRUE(job.rows.empty());
  EXPECT_FALSE(job.substitutePrinter);
  EXPECT_EQ(job.cellPrompts.counter, 0);
  EXPECT_EQ(job.cellPrompts.lastCopy, 0);
  EXPECT_EQ(job.mail.smtpPort, 0);
}

}  // namespace
}  // namespace qm::data
