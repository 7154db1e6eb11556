' A Visual Basic host with arrays and a class of its own. Arguments: the model file, a table path.
' The last line says that nothing went wrong.
Option Explicit
Dim form, failures, archivo, tabla, fichero, i

failures = 0
Sub Expect(what, expected, actual)
  If expected <> actual Then
    failures = failures + 1
    WScript.Echo what & ": expected <" & expected & ">, got <" & actual & ">"
  End If
End Sub

Class Archivo
  Public Posicion
  Public Cuantos
  Public Cambia
  Public Function TipoCampo(ByRef campo)
    TipoCampo = 0
    If campo = 3 Then TipoCampo = 3
    If campo = 4 Then TipoCampo = 5
  End Function
  Public Function FinArchivo
    FinArchivo = Posicion >= 2
  End Function
  Public Sub Siguiente
    Posicion = Posicion + 1
  End Sub
  Public Property Get NumeroRegistros
    NumeroRegistros = Cuantos
  End Property
  Public Function NumeroCampos
    NumeroCampos = 4
  End Function
  Public Function ValorCampo(ByRef campo)
    ValorCampo = "valor " & campo
    If campo = 3 Then ValorCampo = 12
    If campo = 4 Then ValorCampo = "A51231"
    If Cambia Then campo = 99
  End Function
  Public Function NombreDelCampo(campo)
    NombreDelCampo = "CAMPO" & campo
    If campo = 3 Then NombreDelCampo = "TOTAL"
  End Function
  Public Function NombreDeTabla
    NombreDeTabla = "CLIEN"
  End Function
End Class

Set form = CreateObject("Qm_Modelo_Impresion3.PrintForm")
form.XMLFileName = WScript.Arguments(0)
form.NumeroModelo = 1
tabla = WScript.Arguments(1)

' Arrays of variants: file 2 first, file 3 in its place.
Dim valores(3, 4), tipos(3, 4)
For fichero = 2 To 3
  valores(fichero, 1) = "Íñiguez " & fichero
  valores(fichero, 2) = "C" & fichero
  valores(fichero, 3) = "21.5"
  valores(fichero, 4) = "B51231"
  tipos(fichero, 3) = 3
  tipos(fichero, 4) = 0
Next
fichero = 2
form.AsignarDatosTabla tabla, fichero, valores, tipos
form.AsignarDatosTabla tabla, 3, valores, tipos
Expect "table kept", WScript.Arguments(1), tabla

Set archivo = New Archivo
archivo.Cuantos = 2
archivo.Cambia = True
form.AsignarDatosTablaQmF archivo
Expect "not moved", True, archivo.Posicion = 0
form.AsignarDatosTablaQmF2 archivo
Expect "at the end", 2, archivo.Posicion

On Error Resume Next
form.AsignarDatosTabla tabla, 4, valores, tipos
Expect "index", 9, Err.Number
Err.Clear
Dim linea(3)
form.AsignarDatosTabla tabla, 3, linea, tipos
Expect "one dimension", 9, Err.Number
Err.Clear
archivo.Posicion = 0
archivo.Cuantos = 0
form.AsignarDatosTablaQmF2 archivo
Expect "more than counted", 9, Err.Number
Err.Clear
form.AsignarDatosTablaQmF2 Nothing
Expect "Nothing", 91, Err.Number
Err.Clear
On Error GoTo 0

form.AsignarDatosTabla tabla, 3, valores, tipos
form.ImprimirModelo
Expect "ImpresionAnulada", False, form.ImpresionAnulada

Set archivo = Nothing
Set form = Nothing
If failures = 0 Then WScript.Echo "host finished: everything as expected"
WScript.Quit failures
