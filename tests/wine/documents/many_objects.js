// many_objects.js ARCHIVO OBJETOS: creates that many print jobs, each with data of its own, prints the last, the
// middle and the first of them, drops every other one and prints the first again.
var cuantos = Number(WScript.Arguments(1)), impresiones = [];
for (var i = 0; i < cuantos; i++) {
    impresiones[i] = new ActiveXObject("Qm_Modelo_Impresion3.PrintForm");
    impresiones[i].NumeroModelo = 1;
    impresiones[i].AsignarCampo("Nombre", "objeto" + i);
    impresiones[i]["A\u00F1adirCampoTabla"]("TABLA", "Importe", String(i + 0.5), 3);
}
impresiones[0].XMLFileName = WScript.Arguments(0);  // for all of them
impresiones[cuantos - 1].ImprimirModelo();
impresiones[Math.floor(cuantos / 2)].ImprimirModelo();
impresiones[0].ImprimirModelo();
for (var j = 1; j < cuantos; j += 2) impresiones[j] = null;
CollectGarbage();
impresiones[0].AsignarCampo("Nombre", "otravez");
impresiones[0].ImprimirModelo();
WScript.Echo("fin");
WScript.Quit(0);
