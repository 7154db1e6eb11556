// A script host that passes objects of its own for a record file. Arguments: the model file, a table path.
// ASCII only. The last line says that nothing went wrong.
var failures = 0;

function expect(what, expected, actual) {
  if (expected === actual) return;
  failures++;
  WScript.Echo(what + ": expected <" + expected + ">, got <" + actual + ">");
}

function errorOf(action) {
  try {
    action();
    return "none";
  } catch (error) {
    return (error.number & 0xFFFF) + " " + error.description;
  }
}

function numberOf(action) { return parseInt(errorOf(action), 10); }

// A file of records in memory, with the eight operations.
function Archivo(tabla, campos, tipos, registros) {
  this.tabla = tabla;
  this.campos = campos;
  this.tipos = tipos;
  this.registros = registros;
  this.posicion = 0;
  this.llamadas = [];
}
Archivo.prototype.anota = function (llamada) { this.llamadas.push(llamada); };
Archivo.prototype.TipoCampo = function (campo) { this.anota("TipoCampo " + campo); return this.tipos[campo - 1]; };
Archivo.prototype.FinArchivo = function () { this.anota("FinArchivo"); return this.posicion >= this.registros.length; };
Archivo.prototype.Siguiente = function () { this.anota("Siguiente"); this.posicion++; };
Archivo.prototype.NumeroRegistros = function () { this.anota("NumeroRegistros"); return this.registros.length; };
Archivo.prototype.NumeroCampos = function () { this.anota("NumeroCampos"); return this.campos.length; };
Archivo.prototype.ValorCampo = function (campo) { this.anota("ValorCampo " + campo); return this.registros[this.posicion][campo - 1]; };
Archivo.prototype.NombreDelCampo = function (campo) { this.anota("NombreDelCampo " + campo); return this.campos[campo - 1]; };
Archivo.prototype.NombreDeTabla = function () { this.anota("NombreDeTabla"); return this.tabla; };

var form = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");
form.XMLFileName = WScript.Arguments(0);
form.NumeroModelo = 1;

var campos = ["NOMBRE    ", "NIF", "SALDO", "ALTA"];
var tipos = [0, 0, 3, 5];
var clientes = new Archivo("CLIEN", campos, tipos, [
  ["Pe\u00F1a", "B1", 1234, "151231"],
  ["Gil", "B2", 7, "160101"],
  ["Sanz", "B3", 8, ""]
]);

// The current record.
expect("one", "none", errorOf(function () { form.AsignarDatosTablaQmF(clientes); }));
var unRegistro = "";
for (var i = 1; i <= 4; i++) {
  unRegistro += "TipoCampo " + i + ",NombreDeTabla,NombreDelCampo " + i + ",NombreDeTabla,ValorCampo " + i +
                ",TipoCampo " + i + ",";
}
expect("calls", "NumeroCampos," + unRegistro, clientes.llamadas.join(",") + ",");
expect("not moved", 0, clientes.posicion);

// The next one accumulates: the first is printed.
clientes.posicion = 1;
form.AsignarDatosTablaQmF(clientes);
clientes.posicion = 0;
clientes.llamadas = [];

// All records.
expect("all", "none", errorOf(function () { form.AsignarDatosTablaQmF2(clientes); }));
expect("at the end", 3, clientes.posicion);
var unaVuelta = "FinArchivo,NumeroCampos," + unRegistro + "Siguiente,";
expect("all calls", "NumeroRegistros," + unaVuelta + unaVuelta + unaVuelta + "FinArchivo,",
       clientes.llamadas.join(",") + ",");

// Mistakes.
expect("more than counted", 9, numberOf(function () {
  var mentiroso = new Archivo("CLIEN", ["A"], [0], [["1"], ["2"]]);
  mentiroso.NumeroRegistros = function () { return 0; };
  form.AsignarDatosTablaQmF2(mentiroso);
}));
expect("Null", 94, numberOf(function () { form.AsignarDatosTablaQmF(new Archivo("OTRAS", ["A"], [0], [[null]])); }));
expect("Nothing", 91, numberOf(function () { form.AsignarDatosTablaQmF2(null); }));
expect("no operations", 438, numberOf(function () { form.AsignarDatosTablaQmF({}); }));
expect("no object", 13, numberOf(function () { form.AsignarDatosTablaQmF("CLIEN"); }));
expect("no array", 13, numberOf(function () { form.AsignarDatosTabla(WScript.Arguments(1), 1, "a", "b"); }));
var quejoso = new Archivo("OTRAS", ["A"], [0], [["1"]]);
quejoso.Siguiente = function () { form.NumeroModelo = 7; form.ImprimirModelo(); };
expect("an error within", 50102, numberOf(function () { form.AsignarDatosTablaQmF2(quejoso); }));
form.NumeroModelo = 1;

expect("printed", "none", errorOf(function () { form.ImprimirModelo(); }));

if (failures === 0) WScript.Echo("host finished: everything as expected");
WScript.Quit(failures === 0 ? 0 : 1);
