// A script host: builds a record file, fills it, reads it back in two orders and looks at its errors.
// Argument: a folder. ASCII only, names and texts with a tilde by their code.
var failures = 0;

function expect(what, expected, actual) {
  if (expected === actual) return;
  failures++;
  WScript.Echo(what + ": expected <" + expected + ">, got <" + actual + ">");
}

// The number and text of the error of an action, or "none".
function errorOf(action) {
  try {
    action();
    return "none";
  } catch (error) {
    return (error.number & 0xFFFF) + " " + error.description;
  }
}

function newFile() { return new ActiveXObject("QmFile2.QmFileControl2"); }

// What a walk meets: the first field of each record and its position in the file.
function walk(file) {
  var met = "";
  for (; !file.FinArchivo(); file.Siguiente()) met += file.ValorCampo(1) + "@" + file.Posicion() + " ";
  return met;
}

var folder = WScript.Arguments(0);
var file = newFile();
file.Crear("clientes.qmd", folder, "CLIEN", "NOMBRE;CUOTA,3;ALTA,5");
var clients = [["Pe\u00F1a", "12.5", "151231"], ["\u00C1lvarez", "0", "160101"], ["Mu\u00F1oz", "7.25", "160229"]];
for (var i = 0; i < clients.length; i++) {
  file["A\u00F1adirRegistro"]();
  for (var j = 0; j < clients[i].length; j++) file.EscribirCampo(clients[i][j], j + 1);
}
expect("not stored", 0, file.NumeroRegistros());
expect("moving", "50205 Hay registros sin guardar", errorOf(function () { file.Primero(); }));
file.Guardar();
file.Cerrar();
expect("closed", "50203 No hay ning\u00FAn archivo de registros abierto", errorOf(function () { file.Siguiente(); }));

file = newFile();
file.Abrir(folder + "\\clientes.qmd", "");
expect("table", "CLIEN", file.NombreDeTabla());
expect("records", 3, file.NumeroRegistros());
expect("fields", 3, file.NumeroCampos());
expect("name", "ALTA", file.NombreDelCampo(3));
expect("types", "0 3 5", [file.TipoCampo(1), file.TipoCampo(2), file.TipoCampo(3)].join(" "));
expect("file order", "Pe\u00F1a@1 \u00C1lvarez@2 Mu\u00F1oz@3 ", walk(file));
file.Clave(1);
file.Primero();
expect("key order", "Mu\u00F1oz@3 Pe\u00F1a@1 \u00C1lvarez@2 ", walk(file));
file.Buscar("MU\u00D1OZ");
expect("found", 3, file.Posicion());
expect("value", "7.25", file.ValorCampo(2));
file.Buscar("nadie");
expect("not found", 0, file.Posicion());
expect("no record", "50204 No hay ning\u00FAn registro actual", errorOf(function () { file.ValorCampo(1); }));
expect("no field", 9, parseInt(errorOf(function () { file.NombreDelCampo(4); }), 10));

// Two hosts at a time: neither overwrites what the other stored.
var other = newFile();
other.Abrir("clientes.qmd", folder);
other.EscribirCampo("Pe\u00F1a Ruiz", 1);
other.Guardar();
file.Buscar("PE\u00D1A");
file.EscribirCampo("1", 2);
expect("changed", 50207, parseInt(errorOf(function () { file.Guardar(); }), 10));
expect("exists", "58 El archivo ya existe",
       errorOf(function () { newFile().Crear("clientes.qmd", folder, "T", "A"); }));
expect("missing", "53 Archivo no encontrado", errorOf(function () { newFile().Abrir("no.qmd", folder); }));
expect("foreign", 50200, parseInt(errorOf(function () { newFile().Abrir(WScript.ScriptFullName, ""); }), 10));

WScript.Echo(failures === 0 ? "host finished: everything as expected" : "host finished: " + failures + " failures");
WScript.Quit(failures === 0 ? 0 : 1);
