' The host's objects are let go of when the editor is bound to others, on SetApplication with nothing, and with the
' editor; then nothing keeps the library in memory.

Dim relay, host, editor, door, listener
Set relay = CreateObject("BrivaneTest.Relay")
Same "not loaded yet", False, relay.Loaded
Set editor = relay.Make("BrivaneVrijeKolom.VrijeKolom")
Set door = relay.Door(editor)
Set listener = New Listener
relay.Listen editor, listener
Same "loaded", True, relay.Loaded

' application, case, two loans, column, amount, person
Const kHostObjects = 7

Set host = NewHost()
editor.SetApplication host, 0, 1
Set host = Nothing
Same "held while bound", 0, terminated

Set host = NewHost()
editor.SetApplication host, 0, 1
Same "let go when bound to another", kHostObjects, terminated
door.Perform "TxtOm", "enter", "Tweede"
Same "the other one is edited", "Tweede", host.Dossier.HuidigeLening.VrijeKolommen(1).Omschrijving

terminated = 0
editor.SetApplication Nothing, 0, 0
Set host = Nothing
Same "let go on nothing", kHostObjects, terminated

' what is done without a host reaches nobody, and does no harm
door.Perform "TxtOm", "enter", "Derde"
terminated = 0
Set host = NewHost()
editor.SetApplication host, 0, 1
Same "bound again", "Krant", door.Read("TxtOm", "value")
Set host = Nothing
Same "held again", 0, terminated

' identity: an object that comes by two ways is the same one to the logic, and is not held twice
relay.Silence
Set listener = Nothing
Set door = Nothing
Same "still in use", True, relay.Loaded
Set editor = Nothing
Same "let go with the editor", kHostObjects, terminated
Same "unloaded", False, relay.Loaded

Finish 11
