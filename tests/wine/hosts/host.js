// A script host: fills a print job, prints it and looks at its errors. Argument: the model file.
// ASCII only, the names with a tilde by their code. The last line says that nothing went wrong.
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

function numberOf(action) { return parseInt(errorOf(action), 10); }

var file = WScript.Arguments(0);
var form = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");
var other = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");

// A new object.
expect("Error", 0, form.Error);
expect("ErrDescription", "", form.ErrDescription);
expect("ImpresionAnulada", false, form.ImpresionAnulada);
expect("SMTPPort", 0, form.SMTPPort);
expect("NumeroModelo", "undefined", typeof form.NumeroModelo);

// Fields, in any case of their names; texts keep their letters.
form.ErrDescription = "de la casa \u00F1";
form.error = 12;
form.SSL = true;
form.emailtexto = "a\u0000b";
expect("text", "de la casa \u00F1", form.errdescription);
expect("boolean", true, form.SSL);
expect("zero inside", 3, form.EmailTexto.length);
form.SMTPPort = "587";
expect("number from a text", 587, form.SMTPPort);

// One model file for all.
expect("no file", "50101 Debe asignar un nombre de archivo a XMLFileName", errorOf(function () { form.ImprimirModelo(); }));
expect("not cancelled by an error", false, form.ImpresionAnulada);
form.XMLFileName = file;
expect("shared name", file, other.XMLFileName);

// Data.
var added = form.AsignarCampo("CLIENTE", "nadie");
expect("added", "CLIENTE", added.Campo);
var cliente = "Mu\u00F1oz";
expect("changed", null, form.AsignarCampo("CLIENTE", cliente));
expect("shared record", "Mu\u00F1oz", added.Valor);
form["A\u00F1adirCampo"]("NOTA").Valor = "escrito a trav\u00E9s del registro";
expect("table", "FACTU", form["A\u00F1adirTabla"]("FACTU").Tabla);
form["A\u00F1adirCampoTabla"]("FACTU", "importe (FACTU)", "1234.5", 3);

// Printing.
form.NumeroModelo = 9;
expect("no such model", "50102 No existe el modelo de impresi\u00F3n...debe crearlo primero",
       errorOf(function () { form.ImprimirModelo(); }));
form.NumeroModelo = null;
expect("Null as model number", 94, numberOf(function () { form.ImprimirModelo(); }));
form.NumeroModelo = "1";
expect("printed", "none", errorOf(function () { form.ImprimirModelo(); }));
expect("not cancelled", false, form.ImpresionAnulada);
form.NumeroModelo = 2;
expect("printer failure", 482, numberOf(function () { form.ImprimirModelo(); }));
expect("host's Error", 12, form.Error);
expect("host's ErrDescription", "de la casa \u00F1", form.ErrDescription);

// Mistakes.
expect("Null", 94, numberOf(function () { form.AsignarCampo("X", null); }));
expect("wrong type", 13, numberOf(function () { form["A\u00F1adirCampoTabla"]("T", "C", "V", "tres"); }));
expect("too large", 6, numberOf(function () { form["A\u00F1adirCampoTabla"]("T", "C", "V", 40000); }));
expect("too few", 449, numberOf(function () { form.AsignarCampo("X"); }));
expect("too many", 450, numberOf(function () { form.ImprimirModelo(1); }));
expect("unknown", true, numberOf(function () { form.NoExiste(); }) > 0);

// The other classes.
var cell = new ActiveXObject("Qm_Modelo_Impresion3.DatosTabla");
cell.Tipo = "5";
expect("Tipo", 5, cell.Tipo);
expect("Tablas", "", new ActiveXObject("Qm_Modelo_Impresion3.Tablas").Tabla);
expect("Campos", "", new ActiveXObject("Qm_Modelo_Impresion3.Campos").Valor);
var email = new ActiveXObject("Qm_Modelo_Impresion3.Email");
email.Recibo = true;
expect("Recibo", true, email.Recibo);
expect("Enviar to nobody", "", email.Enviar());

if (failures === 0) WScript.Echo("host finished: everything as expected");
WScript.Quit(failures === 0 ? 0 : 1);
