// Imprime etiquetas de los clientes de un archivo de registros, que antes crea.
// Uso: cscript //nologo etiquetas.js [CLIENTES.qmd]
var carpeta = WScript.ScriptFullName.replace(/[^\\]*$/, "");
var sistema = new ActiveXObject("Scripting.FileSystemObject");
var archivo = WScript.Arguments.length > 0 ? WScript.Arguments(0)
                                           : sistema.GetSpecialFolder(2).Path + "\\clientes.qmd";
if (sistema.FileExists(archivo)) sistema.DeleteFile(archivo);

var personas = [
    ["Muñoz & Íñiguez, Construcciones", "Avenida de la Constitución, 145", "30008 Murcia", "01/01/24"],
    ["Peña Hermanos, S.A.", "Calle del Pozo, 3, 1.º izda.", "30830 La Ñora (Murcia)", "15/06/23"],
    ["Librería Güell", "Plaza Mayor, 8", "03001 Alicante", "30/09/22"],
    ["Talleres Ibáñez", "Polígono El Saladar, nave 12", "30850 Totana (Murcia)", "03/03/21"],
    ["María Ángeles Núñez", "Camino Viejo, s/n", "02001 Albacete", "29/02/20"]
];

var clientes = new ActiveXObject("QmFile2.QmFileControl2");
clientes.Crear(archivo, "", "CLIEN", "NOMBRE;DIRECCION;POBLACION;ALTA,5");
for (var vez = 0; vez < 4; vez++) {
    for (var i = 0; i < personas.length; i++) {
        clientes.AñadirRegistro();
        for (var campo = 0; campo < 4; campo++) clientes.EscribirCampo(personas[i][campo], campo + 1);
    }
}
clientes.Guardar();
clientes.Primero();

var impresion = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");
impresion.XMLFileName = carpeta + "modelos.xml";
impresion.NumeroModelo = 3;
impresion.AsignarDatosTablaQmF2(clientes);
clientes.Cerrar();
try {
    impresion.ImprimirModelo();
} catch (fallo) {
    WScript.Echo("Error " + (fallo.number & 0xFFFF) + ": " + fallo.description);
    WScript.Quit(1);
}
WScript.Echo(impresion.ImpresionAnulada ? "Impresión anulada" : "Etiquetas impresas");
WScript.Quit(impresion.ImpresionAnulada ? 2 : 0);
