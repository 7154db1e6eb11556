// imprimir.js ARCHIVO NUMERO [VECES [CAMPO=VALOR | TIPO:CELDA=VALOR ...]]: prints a model VECES times with one
// object and says how each time ended: "impreso", "anulado" or "error N: description". TIPO is a cell's type.
var argumentos = WScript.Arguments;
var impresion = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");
impresion.XMLFileName = argumentos(0);
impresion.NumeroModelo = argumentos(1);
var veces = argumentos.length > 2 ? Number(argumentos(2)) : 1;
for (var i = 3; i < argumentos.length; i++) {
    var igual = argumentos(i).indexOf("=");
    var nombre = argumentos(i).substr(0, igual), valor = argumentos(i).substr(igual + 1);
    var celda = /^(\d+):(.*)$/.exec(nombre);
    if (celda)
        impresion["A\u00F1adirCampoTabla"]("TABLA", celda[2], valor, Number(celda[1]));
    else
        impresion.AsignarCampo(nombre, valor);
}
for (var vez = 0; vez < veces; vez++) {
    try {
        impresion.ImprimirModelo();
        WScript.Echo(impresion.ImpresionAnulada ? "anulado" : "impreso");
    } catch (fallo) {
        WScript.Echo("error " + (fallo.number & 0xFFFF) + ": " + fallo.description);
    }
}
WScript.Echo("fin");
WScript.Quit(0);
