' Failures both ways: of the host while the library works, and of the library to the script.

Class Tracer
  Public ObjectName : Public Caption : Public ObjectDescription : Public Message : Public ApplicationTitle
  Public ErrorNumber : Public ErrorDescription : Public ErrorSource : Public lines
  Private Sub Class_Terminate()
    terminated = terminated + 1
  End Sub
  Public Sub EnterProcedure(procedure)
    lines = lines & ">" & procedure & " "
  End Sub
  Public Sub LeaveProcedure()
    lines = lines & "< "
  End Sub
  Public Sub ErrorInProcedure(procedure)
    lines = lines & "!" & procedure & " "
  End Sub
End Class

Class Tools
  Public tracers : Public last : Public checked : Public kind
  Public Function MakeProcedureTrace(control)
    If control = "VrijeKolom" Then tracers = tracers + 1
    Set last = New Tracer
    Set MakeProcedureTrace = last
  End Function
  Public Function MakeDossierControle(control)
    Set MakeDossierControle = Me
  End Function
  Public Sub Controleer(application, soort)
    Set checked = application
    kind = soort
  End Sub
End Class

' A column that refuses a new description.
Class Refuser
  Public CorrectieLast : Public CorrectieFiscaal : Public HeffingBij : Public Bedrag : Public Termijn
  Public InkomenUitArbeid : Public InDagloon : Public DatumAanvang : Public Looptijd : Public IsProduct
  Public Productsoort : Public Voorstel1 : Public Kopregel
  Public UitsluitenAO : Public UitsluitenWW : Public UitsluitenLangleven : Public ScenarioOverlijden
  Public PercentageOvergang : Public EinddatumOvergang : Public EindleeftijdOvergang
  Private Sub Class_Initialize()
    CorrectieLast = 1 : CorrectieFiscaal = 1 : HeffingBij = 1 : Termijn = 1
    Set Bedrag = New BedragHost
  End Sub
  Public Property Get Voorstel(nummer)
    Voorstel = ""
  End Property
  Public Property Get Omschrijving()
    Omschrijving = "Krant"
  End Property
  Public Property Let Omschrijving(nieuw)
    Err.Raise 1234, "Refuser", "Omschrijving staat vast"
  End Property
End Class

' A host that takes the tracer away while it is told of a failure.
Class Taker
  Public Dossier : Public reports
  Public Sub ReportError(trace)
    reports = reports + 1
    Set trace = Nothing
  End Sub
End Class

Dim relay, host, editor, door, tools, taker, yearForm, cancel
Set relay = CreateObject("BrivaneTest.Relay")
Set host = NewHost()
host.Dossier.HuidigeLening.kolommen.Add "2", New Refuser
Set editor = relay.Make("BrivaneVrijeKolom.VrijeKolom")
Set door = relay.Door(editor)
Set tools = New Tools
tools.tracers = 0
door.Callback = tools

' the host fails while an edit is written
editor.SetApplication host, 0, 2
Same "bound", 0, host.reports
tools.last.lines = ""
Same "edit", 0, door.Perform("TxtOm", "enter", "Iets")
Same "reported once", 1, host.reports
Same "with its number", "VrijeKolom|Kwandero|Er is een fout opgetreden.|1234", _
     Left(host.lastReport, Len("VrijeKolom|Kwandero|Er is een fout opgetreden.|1234"))

' objects that are missing
editor.SetApplication host, 0, 7
Same "no such column", 2, host.reports
Same "object missing", "VrijeKolom|Kwandero|Er is een fout opgetreden.|91|Object missing|BrivaneVrijeKolom", host.lastReport
editor.SetApplication host, 5, 1
Same "no such loan", 3, host.reports

' members that the host does not have
Set taker = New Taker
taker.reports = 0
Same "one tracer so far", 1, tools.tracers
editor.SetApplication taker, 0, 1
Same "reported to the new host", 1, taker.reports
Same "and no longer to the other", 3, host.reports
cancel = False
editor.Validation cancel
Same "a tracer that was taken away is made anew", 2, tools.tracers
Same "its lines", ">Validation < ", tools.last.lines

' the host's own check gets the application as it was handed over
editor.SetApplication host, 0, 1
door.Perform "TxtDtAanvang", "enter", DateSerial(2031, 4, 1)
editor.Validation cancel
Same "check called", 1, tools.kind
Same "with the application itself", True, relay.Same(host, tools.checked)

' failures of the library reach the script
Set yearForm = relay.Make("BrivaneVrijeKolom.frmScenario")
On Error Resume Next
yearForm.DisableJaar(51) = True
Same "out of range", 9, Err.Number
Same "described", "Subscript out of range", Err.Description
Same "by the library", "BrivaneVrijeKolom", Err.Source
Err.Clear
door.Perform "TxtNiets", "press"
Same "no such element", 340, Err.Number
Err.Clear
door.Perform "TxtOm", "dans"
Same "no such action", 5, Err.Number
Err.Clear
editor.SetApplication "geen object", 0, 1
Same "no object", 13, Err.Number
Err.Clear
editor.SetApplication host, 40000, 1
Same "out of 16 bits", 6, Err.Number
Err.Clear
editor.DoesNotExist
Same "no such member", 438, Err.Number
On Error Goto 0

Set door = Nothing
Set yearForm = Nothing
Set editor = Nothing
Same "unloaded", False, relay.Loaded

Finish 23
