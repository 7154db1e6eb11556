' A Visual Basic host with plain variables as arguments. Argument: the model file.
' The last line says that nothing went wrong.
Option Explicit
Dim form, record, failures, nombre, valor, tabla, campo, tipo

failures = 0
Sub Expect(what, expected, actual)
  If expected <> actual Then
    failures = failures + 1
    WScript.Echo what & ": expected <" & expected & ">, got <" & actual & ">"
  End If
End Sub

Set form = CreateObject("Qm_Modelo_Impresion3.PrintForm")
Expect "NumeroModelo", True, IsEmpty(form.NumeroModelo)
form.XMLFileName = WScript.Arguments(0)
form.NumeroModelo = 1

nombre = "CLIENTE"
valor = "Íñiguez"
Set record = form.AsignarCampo(nombre, valor)
Expect "added", "CLIENTE", record.Campo
Expect "changed", True, form.AsignarCampo(nombre, valor) Is Nothing
Expect "variable", "CLIENTE", nombre
valor = 12.5
form.AsignarCampo "NUMERO", valor
Set record = form.AñadirCampo("NOTA")
record.Valor = "con eñe"
tabla = "FACTU" : campo = "IMPORTE (FACTU)" : valor = "99.9" : tipo = 3
form.AñadirCampoTabla tabla, campo, valor, tipo
Expect "type kept", 3, tipo
form.ImprimirModelo
Expect "ImpresionAnulada", False, form.ImpresionAnulada

On Error Resume Next
form.AsignarCampo nombre, Null
Expect "Null", 94, Err.Number
Err.Clear
form.NumeroModelo = 7
form.ImprimirModelo
Expect "number", 50102, Err.Number
Expect "description", "No existe el modelo de impresión...debe crearlo primero", Err.Description
Expect "source", "Qm_Modelo_Impresion3", Err.Source
Err.Clear
Set form.NumeroModelo = record
Expect "object as model number", 0, Err.Number
form.ImprimirModelo
Expect "object without default property", 438, Err.Number
Err.Clear
form.NumeroModelo = Empty
On Error GoTo 0

Set record = Nothing
Set form = Nothing
If failures = 0 Then WScript.Echo "host finished: everything as expected"
WScript.Quit failures
