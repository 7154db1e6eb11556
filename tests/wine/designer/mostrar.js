// mostrar.js ARCHIVO NUMERO: opens the designer on a file of models with what the example invoice pours in, and
// says how the call ended: "cerrado" or "error N: description".
var argumentos = WScript.Arguments;
var impresion = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");
impresion.XMLFileName = argumentos(0);
impresion.NumeroModelo = argumentos(1);

// "#" and "|" offer texts that the clerk types when placing them.
var campos = ["#", "|", "Numero", "FormaPago", "Observaciones", "Concepto1", "Año"];
for (var i = 0; i < campos.length; i++) impresion.AñadirCampo(campos[i]);
impresion.AñadirTabla(argumentos(0).replace(/[^\\]*$/, "") + "CLIEN");

try {
    impresion.Show();
    WScript.Echo("cerrado");
} catch (fallo) {
    WScript.Echo("error " + (fallo.number & 0xFFFF) + ": " + fallo.description);
}
WScript.Echo("fin");
WScript.Quit(0);
