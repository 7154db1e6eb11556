// imprimir.js ARCHIVO NUMERO [VECES [CAMPO=VALOR ...]]: prints a model VECES times with one object and says how
// each time ended: "impreso", "anulado" or "error N: description".
var argumentos = WScript.Arguments;
var impresion = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");
impresion.XMLFileName = argumentos(0);
impresion.NumeroModelo = argumentos(1);
var veces = argumentos.length > 2 ? Number(argumentos(2)) : 1;
for (var i = 3; i < argumentos.length; i++) {
    var igual = argumentos(i).indexOf("=");
    impresion.AsignarCampo(argumentos(i).substr(0, igual), argumentos(i).substr(igual + 1));
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
