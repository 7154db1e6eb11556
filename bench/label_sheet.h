#pragma once
// A table of customers and a label of five fields in three font mixes, for the measurements of label sheets.

#include <iterator>
#include <string>
#include <vector>

#include "data/print_job.h"
#include "runtime/code_page.h"

namespace qm::bench {

struct LabelField {
  const char* column;
  const char* font;
  bool bold;
  std::int16_t kind;
};

inline constexpr LabelField kLabelFields[] = {{"NOMBRE (CLIEN)", "Arial", true, 0},
                                              {"DOMICI (CLIEN)", "Arial", false, 0},
                                              {"POBLAC (CLIEN)", "Arial", false, 0},
                                              {"CODPOS (CLIEN)", "Times New Roman", false, 1},
                                              {"SALDO (CLIEN)", "Times New Roman", false, 3}};
inline constexpr int kLabelWidth = 5670;
inline constexpr int kLabelHeight = 2000;
inline constexpr int kFieldLeft = 200;
inline constexpr int kFieldTop = 100;
inline constexpr int kFieldStep = 350;
inline constexpr double kFontPoints = 9;

inline std::string LabelModelBytes() {
  std::string text = "<Modelos><Modelo Numero=\"1\" Width=\"" + std::to_string(kLabelWidth) + "\" Height=\"" +
                     std::to_string(kLabelHeight) + "\" Copias=\"1\" EsEtiqueta=\"1\">";
  int top = kFieldTop;
  for (const LabelField& field : kLabelFields) {
    text += std::string("<Campo><Descripcion>") + field.column + "</Descripcion><Top>" + std::to_string(top) +
            "</Top><Left>" + std::to_string(kFieldLeft) +
            "</Left><Width>5000</Width><Height>300</Height><ForeColor>0</ForeColor><Bold>" +
            (field.bold ? "Verdadero" : "Falso") +
            "</Bold><FontSize>9</FontSize><FontItalic>Falso</FontItalic><Alignment>0</Alignment>"
            "<Underline>Falso</Underline><FontName>" +
            field.font + "</FontName></Campo>";
    top += kFieldStep;
  }
  return text + "</Modelo></Modelos>";
}

// The text that a cell prints as is its value, but for the amount.
inline std::u16string CellValue(int row, std::size_t field) {
  const std::u16string number = runtime::FromUtf8(std::to_string(row));
  const std::u16string values[] = {u"Peña e Hijos " + number, u"Calle de la Constitución " + number,
                                   u"Alcalá de Henares", u"28801", u"1234.5"};
  return values[field];
}

inline data::Cells LabelRow(int row) {
  data::Cells cells;
  for (std::size_t i = 0; i < std::size(kLabelFields); ++i)
    cells.push_back(
        {u"CLIEN", runtime::FromUtf8(kLabelFields[i].column), CellValue(row, i), kLabelFields[i].kind});
  return cells;
}

}  // namespace qm::bench
