#pragma once
// A model file printed with the data and the answers of a script, as a readable log. The script has one
// command a line, in UTF-8:
//   # text                     a remark
//   locale en                  the user's regional settings; Spanish ones where nothing is said
//   model 3                    the number of the model, as a text
//   field NOMBRE=valor         a field of the host
//   cell 3 NOMBRE=valor        a table cell and its type code
//   picture fondo.bmp=640x480  a picture in the model's folder, in pixels
//   printers A|B               the installed printers, the first being the default one
//   forms A=A4|A5              the paper forms of a printer
//   no forms                   a system without custom forms
//   answer texto               to the next value prompt
//   choose A                   to the choice of a printer; without a name it is cancelled
//   choose fails               the choice cannot be shown
//   fail text 3                which text of each printer fails, the opening blank of a job counted
//   fail page 1                which new page of each printer fails
//   fail end 1                 which end of a job fails
//   row 0 NOMBRE=Ana|3 IMPORTE=9  the next row of the table: the cells with their type codes
//   rows 17 NOMBRE=Fila           that many rows, each with one cell: "Fila 1", "Fila 2", ...
//   gap                        a row that is never filled
//   setting Ancho=03           a setting of label sheets
//   options 3|7|0|0|21|29      the answers to the label options; as offered where nothing is said
//   options cancel             they are cancelled
//   print, labels, draw                the actions, each logged with its outcome

#include <string>
#include <string_view>

namespace qm::print {

// A command that is none of these gives a line "unknown command: ...".
[[nodiscard]] std::string GoldenLog(std::string_view modelFileBytes, std::string_view script);

}  // namespace qm::print
