// Escribe un archivo de definición de tabla: el título y los nombres de los campos, en su orden.
// Uso: cscript //nologo definicion.js CLIEN.Qma Clientes NOMBRE DIRECCION POBLACION NIF ALTA SALDO
// Cada pieza ocupa un ancho fijo y se completa con blancos; el archivo no lleva fines de línea.
function fijo(texto, ancho) {
    while (texto.length < ancho) texto += " ";
    return texto.substr(0, ancho);
}

var argumentos = WScript.Arguments;
if (argumentos.length < 3 || argumentos.length > 101) {
    WScript.Echo("Uso: cscript //nologo definicion.js ARCHIVO.Qma TITULO CAMPO ... (hasta 99 campos)");
    WScript.Quit(2);
}
var campos = argumentos.length - 2;
var definicion = (campos < 10 ? "0" : "") + campos + fijo(argumentos(1), 23) + fijo("", 8);
for (var i = 0; i < campos; i++) definicion += fijo("", 8) + fijo(argumentos(i + 2), 23) + fijo("", 2);

var archivo = new ActiveXObject("Scripting.FileSystemObject").CreateTextFile(argumentos(0), true);
archivo.Write(definicion);
archivo.Close();
WScript.Echo(argumentos(0) + ": " + campos + " campos");
WScript.Quit(0);
