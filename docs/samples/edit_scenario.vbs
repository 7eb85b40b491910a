' Opens the wizard on a scenario of a recovery file and keeps what the user made of it.
'   cscript //nologo edit_scenario.vbs FILE.trs "Name of the scenario"
' The component and the objects of its host must be registered: regsvr32 RecoveryUI.dll TovarinObjects.dll
Option Explicit

Sub ListClasses()
    Dim name, object
    For Each name In Array("RecoveryDlg", "RecoveryPP", "RecoveryWizard", "RecoveryAddDlg", "RecoveryUIAddin", _
                           "RecoveryPPSpecifier", "ScenarioProperties")
        Set object = CreateObject("Vantrel." & name)
        WScript.Echo name & " is an " & TypeName(object)
    Next
End Sub

' What the component asks of its host, by the names under which it looks.
Function NewRack()
    Set NewRack = CreateObject("Tovarin.ObjectRack")
    NewRack.PutNew "TestOptions", "Tovarin.TestOptions"
    NewRack.PutNew "RecordMgr", "Tovarin.RecordMgr"
    NewRack.PutNew "RACK_FILE_LOCATOR", "Tovarin.FileLocator"
    NewRack.PutNew "TovPluginMgrObject", "Tovarin.PluginMgr"
End Function

Function Describe(scenario)
    Dim kinds
    kinds = scenario.OperationKinds
    Describe = "trigger " & scenario.TriggerKind & ", " & (UBound(kinds) + 1) & " operations, option " & _
        scenario.GetPostRecoveryOption() & ", """ & scenario.GetDescription() & """"
End Function

Sub Edit(path, name)
    Dim rack, file, wizard, before, title
    Set rack = NewRack()
    Set file = CreateObject("Vantrel.RecoveryRepository")
    file.Load path, False
    For Each title In file.ScenarioNames
        WScript.Echo "scenario: " & title
    Next
    Set before = file.GetScenario(name)
    WScript.Echo "before: " & Describe(before)

    Set wizard = CreateObject("Vantrel.RecoveryWizard")
    rack.GiveTo wizard
    Set wizard.Repository = file
    Set wizard.Scenario = before
    wizard.ScenarioName = name
    wizard.DoModal

    ' Finish makes a new scenario; after Cancel the wizard still holds the one that it was given.
    If wizard.Scenario Is before Then
        WScript.Echo "cancelled"
        Exit Sub
    End If
    WScript.Echo "after: " & wizard.ScenarioName & ": " & Describe(wizard.Scenario)
    WScript.Echo "add to the test: " & wizard.AddToCurrent & ", to new tests: " & wizard.AddToDefault
    file.RemoveScenario name
    file.AddScenario wizard.Scenario, wizard.ScenarioName, 1
    file.Save ""
    WScript.Echo "saved"
End Sub

ListClasses
Edit WScript.Arguments(0), WScript.Arguments(1)
WScript.Echo "done"
