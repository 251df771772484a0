' The host's objects are let go of when the editor is bound to others, on SetApplication with nothing, and with the
' editor; then nothing keeps the library in memory.

Dim relais, host, editor, deur, luisteraar, herinnering
Set relais = CreateObject("BrivaneProef.Relais")
Same "not loaded yet", False, relais.Geladen
Set editor = relais.Maak("BrivaneVrijeKolom.VrijeKolom")
Set deur = relais.Deur(editor)
Set luisteraar = New Luisteraar
relais.Luister editor, luisteraar
Same "loaded", True, relais.Geladen

' application, case, two loans, column, amount, person
Const kHostObjects = 7

Set host = NewHost()
editor.SetApplication host, 0, 1
Set host = Nothing
Same "held while bound", 0, terminated

Set host = NewHost()
editor.SetApplication host, 0, 1
Same "let go when bound to another", kHostObjects, terminated
deur.Perform "TxtOm", "enter", "Tweede"
Same "the other one is edited", "Tweede", host.Dossier.HuidigeLening.VrijeKolommen(1).Omschrijving

terminated = 0
editor.SetApplication Nothing, 0, 0
Set host = Nothing
Same "let go on nothing", kHostObjects, terminated

' what is done without a host reaches nobody, and does no harm
deur.Perform "TxtOm", "enter", "Derde"
terminated = 0
Set host = NewHost()
editor.SetApplication host, 0, 1
Same "bound again", "Krant", deur.Read("TxtOm", "value")
Set host = Nothing
Same "held again", 0, terminated

' identity: an object that comes by two ways is the same one to the logic, and is not held twice
relais.Zwijg
Set luisteraar = Nothing
Set deur = Nothing
Same "still in use", True, relais.Geladen
Set editor = Nothing
Same "let go with the editor", kHostObjects, terminated
Same "unloaded", False, relais.Geladen

Finish 11
