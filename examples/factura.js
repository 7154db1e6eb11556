// Imprime una factura de ejemplo en la impresora predeterminada, original y copia. Con una carpeta, que acaba
// en barra invertida, deja en ella la misma factura como PDF y como ZIP, para enviarla.
// Uso: cscript //nologo factura.js [CARPETA\]
var carpeta = WScript.ScriptFullName.replace(/[^\\]*$/, "");

var impresion = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");
impresion.XMLFileName = carpeta + "modelos.xml";
impresion.NumeroModelo = 1;

// Campos sueltos: un nombre y un texto.
impresion.AsignarCampo("Numero", "2015/0042");
impresion.AsignarCampo("FormaPago", "Transferencia");
impresion.AsignarCampo("Observaciones",
    "Los portes corren por cuenta del comprador. La mercancía viaja asegurada y puede devolverse " +
    "durante los treinta días siguientes a su recepción, siempre en su embalaje original.");

// Celdas de tablas: los tipos 3 y 5 son número y fecha, y se imprimen con su formato.
function celda(tabla, campo, valor, tipo) {
    impresion.AñadirCampoTabla(tabla, campo + " (" + tabla + ")", String(valor), tipo);
}

celda("CLIEN", "NOMBRE", "Muñoz & Íñiguez, Construcciones", 0);
celda("CLIEN", "DIRECCION", "Avenida de la Constitución, 145, 2.º B, 30008 Murcia (España)", 0);
celda("CLIEN", "NIF", "NIF B-73987654", 0);
celda("FACTU", "FECHA", "151231", 5);
celda("FACTU", "VENCE", "160131", 5);

var lineas = [
    ["Cemento gris en sacos de 25 kg", 40, 4.15],
    ["Ladrillo hueco doble, palé de 420 piezas", 3, 96.6],
    ["Azulejo blanco 20 × 20 cm", 25, 11.9],
    ["Pintura plástica mate, cubo de 15 litros", 4, 38.75]
];
var base = 0;
for (var i = 0; i < lineas.length; i++) {
    var importe = lineas[i][1] * lineas[i][2];
    base += importe;
    impresion.AsignarCampo("Concepto" + (i + 1), lineas[i][0]);
    celda("FACTU", "CANTIDAD" + (i + 1), lineas[i][1], 3);
    celda("FACTU", "PRECIO" + (i + 1), lineas[i][2], 3);
    celda("FACTU", "IMPORTE" + (i + 1), importe.toFixed(2), 3);
}
var iva = base * 0.21;
celda("FACTU", "BASE", base.toFixed(2), 3);
celda("FACTU", "IVA", iva.toFixed(2), 3);
celda("FACTU", "TOTAL", (base + iva).toFixed(2), 3);

var envio = WScript.Arguments.length > 0;
try {
    if (envio) {
        impresion.CrearZip(WScript.Arguments(0), "factura.pdf");
        impresion.CrearZip(WScript.Arguments(0), "factura.zip");
    } else {
        impresion.ImprimirModelo();
    }
} catch (fallo) {
    WScript.Echo("Error " + (fallo.number & 0xFFFF) + ": " + fallo.description);
    WScript.Quit(1);
}
if (impresion.ImpresionAnulada) {
    WScript.Echo("Impresión anulada");
    WScript.Quit(2);
}
WScript.Echo(envio ? "Factura lista para enviar" : "Factura impresa");
WScript.Quit(0);
