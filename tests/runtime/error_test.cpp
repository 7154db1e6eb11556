#include "runtime/error.h"

#include <gtest/gtest.h>

using namespace qm::runtime;

TEST(Errors, ARuntimeErrorCarriesItsNumberAndItsSpanishText) {
  const RuntimeError error(ErrorNumber::TypeMismatch);
  EXPECT_EQ(error.number(), 13);
  EXPECT_TRUE(error.Is(ErrorNumber::TypeMismatch));
  EXPECT_FALSE(error.Is(ErrorNumber::Overflow));
  EXPECT_EQ(error.description(), u"Error de coincidencia de tipos");
}

TEST(Errors, AnErrorOfTheComponentKeepsItsOwnText) {
  const RuntimeError error(50100, u"No hay modelos");
  EXPECT_EQ(error.number(), 50100);
  EXPECT_EQ(error.description(), u"No hay modelos");
}

TEST(Errors, EveryNumberHasItsSpanishText) {
  struct Row {
    int number;
    std::u16string_view text;
  };
  constexpr Row kRows[] = {
      {5, u"Llamada al procedimiento no válida"},
      {6, u"Desbordamiento"},
      {9, u"Subíndice fuera de rango"},
      {13, u"Error de coincidencia de tipos"},
      {53, u"Archivo no encontrado"},
      {62, u"La entrada sobrepasó el final del archivo"},
      {70, u"Permiso denegado"},
      {94, u"Uso no válido de Null"},
      {482, u"Error de impresora"},
      {50100, u"Error definido por la aplicación o el objeto"},  // not the runtime's own
      {0, u"Error definido por la aplicación o el objeto"},
  };
  for (const Row& row : kRows) EXPECT_EQ(DescriptionOf(row.number), row.text) << row.number;
  for (const ErrorNumber number :
       {ErrorNumber::OutOfMemory, ErrorNumber::FileAlreadyOpen, ErrorNumber::InputOutput,
        ErrorNumber::DiskFull, ErrorNumber::PathFileAccess, ErrorNumber::PathNotFound,
        ErrorNumber::ObjectNotSet, ErrorNumber::MissingControlElement, ErrorNumber::InvalidPicture}) {
    EXPECT_NE(DescriptionOf(static_cast<int>(number)), DescriptionOf(0)) << static_cast<int>(number);
  }
}
