#include "mail/names.h"

#include <gtest/gtest.h>

#include "tests/fakes/fake_folders.h"

namespace qm::mail {
namespace {

using Names = std::vector<std::u16string>;

TEST(ValidFileNames, HaveBlanksForWhatFilesCannotBeCalled) {
  EXPECT_EQ(NombreArchivoValido(u"Factura 12/2024: pago"), u"Factura 12 2024  pago");
  EXPECT_EQ(NombreArchivoValido(u"a\"b*c/d:e<f>g?h\\i|j"), u"a b c d e f g h i j");
  EXPECT_EQ(NombreArchivoValido(u"a\r\nb\tc"), u"a  b c");
}

TEST(ValidFileNames, AreTrimmedOnceAndKeepTheirLength) {
  EXPECT_EQ(NombreArchivoValido(u"  hola  "), u"hola");
  EXPECT_EQ(NombreArchivoValido(u" :hola: "), u" hola ");
}

TEST(ValidFileNames, AreJudgedByTheirCodesOfEightBits) {
  EXPECT_EQ(NombreArchivoValido(u"ñ€·ç"), u"ñ€·ç");
  EXPECT_EQ(NombreArchivoValido(u"a日b"), u"a b");  // "?" in the code page
  EXPECT_EQ(NombreArchivoValido(u"a＊b"), u"a b");  // whose best fit is an asterisk
}

TEST(ValidFileNames, LeaveDotsAloneForTheyCannotBeAFolderHere) {
  EXPECT_EQ(NombreArchivoValido(u"..\\..\\x"), u".. .. x");
}

TEST(BareNames, StandBehindTheLastBackslash) {
  EXPECT_EQ(BareName(u"C:\\a\\x.pdf"), u"x.pdf");
  EXPECT_EQ(FolderOf(u"C:\\a\\x.pdf"), u"C:\\a\\");
  EXPECT_EQ(BareName(u"x.pdf"), u"x.pdf");
  EXPECT_EQ(FolderOf(u"x.pdf"), u"");
  EXPECT_EQ(BareName(u"C:\\a\\"), u"");
  EXPECT_EQ(BareName(u""), u"");
}

TEST(FileNames, OfDevicesNameNoFile) {
  for (const std::u16string_view device :
       {u"CON", u"con", u"NUL", u"C:\\a\\nul", u"C:\\a\\CON.txt", u"aux .pdf", u"com1", u"LPT9.pdf", u"COM²",
        u"C:/a/prn", u"CONIN$", u"CON:", u"\\\\.\\PhysicalDrive0", u"//./PhysicalDrive0", u"\\/.\\C:",
        u"\\\\?\\PhysicalDrive0", u"\\\\?\\GLOBALROOT\\Device\\x", u"\\\\.\\"}) {
    EXPECT_FALSE(CanNameFile(device));
  }
  for (const std::u16string_view file :
       {u"contrato.pdf", u"C:\\con\\a.txt", u"COM.pdf", u"LPT10", u"nulo", u"x.con",
        u"\\\\servidor\\a\\b.pdf", u"\\\\?\\C:\\a.pdf", u"\\\\?\\unc\\servidor\\a\\b.pdf", u"\\\\?"}) {
    EXPECT_TRUE(CanNameFile(file));
  }
}

TEST(FileNames, WithControlCharactersNameNoFile) {
  EXPECT_FALSE(CanNameFile(u"C:\\a\\x.pdf\n"));
  EXPECT_FALSE(CanNameFile(std::u16string_view(u"C:\\a\\x.pdf\0.gif", 15)));
}

TEST(Folders, AreMadeWithAllThatAreMissingAboveThem) {
  fakes::FakeFolders folders;
  CrearCarpeta(u"C:\\Correo\\Salida\\", folders);
  EXPECT_EQ(folders.made, (Names{u"C:\\Correo", u"C:\\Correo\\Salida"}));
  CrearCarpeta(u"C:\\Correo\\Salida", folders);
  EXPECT_EQ(folders.made.size(), 2u);
}

TEST(Folders, ThatCannotBeMadeAreNotComplainedOf) {
  fakes::FakeFolders folders;
  folders.makingFails = true;
  CrearCarpeta(u"Z:\\a\\", folders);
  EXPECT_EQ(folders.made, (Names{u"Z:", u"Z:\\a"}));
}

TEST(Folders, EndWhereNoParentIsLeft) {
  fakes::FakeFolders folders;
  CrearCarpeta(u"\\\\servidor\\a\\", folders);
  CrearCarpeta(u"\\", folders);
  CrearCarpeta(u"", folders);
  EXPECT_EQ(folders.made, (Names{u"\\\\servidor", u"\\\\servidor\\a"}));
}

}  // namespace
}  // namespace qm::mail
