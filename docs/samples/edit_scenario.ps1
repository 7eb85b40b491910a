# Opens the wizard on a scenario of a recovery file and keeps what the user made of it.
#   powershell -STA -File edit_scenario.ps1 FILE.trs "Name of the scenario"
# The component and the objects of its host must be registered, for programs as wide as this PowerShell.
param([Parameter(Mandatory)][string]$Path, [Parameter(Mandatory)][string]$Name)
$ErrorActionPreference = 'Stop'

function New-Rack {
    $rack = New-Object -ComObject Tovarin.ObjectRack
    $services = [ordered]@{
        TestOptions        = 'Tovarin.TestOptions'
        RecordMgr          = 'Tovarin.RecordMgr'
        RACK_FILE_LOCATOR  = 'Tovarin.FileLocator'
        TovPluginMgrObject = 'Tovarin.PluginMgr'
    }
    foreach ($service in $services.GetEnumerator()) { $rack.PutNew($service.Key, $service.Value) }
    $rack
}

function Format-Scenario($scenario) {
    'trigger {0}, {1} operations, option {2}, "{3}"' -f $scenario.TriggerKind, @($scenario.OperationKinds).Count,
        $scenario.GetPostRecoveryOption(), $scenario.GetDescription()
}

$rack = New-Rack
$file = New-Object -ComObject Vantrel.RecoveryRepository
$file.Load((Resolve-Path -LiteralPath $Path).ProviderPath, $false)
$wizard = New-Object -ComObject Vantrel.RecoveryWizard
$wizard | Get-Member

$rack.GiveTo($wizard)
$wizard.Repository = $file
$before = $file.GetScenario($Name)
Format-Scenario $before
$wizard.Scenario = $before
$wizard.ScenarioName = $Name
$wizard.DoModal()

# Finish makes a new scenario; after Cancel the wizard still holds the one that it was given.
if ([object]::ReferenceEquals($wizard.Scenario, $before)) { 'cancelled'; return }
Format-Scenario $wizard.Scenario
"add to the test: $($wizard.AddToCurrent), to new tests: $($wizard.AddToDefault)"
$file.RemoveScenario($Name)
$file.AddScenario($wizard.Scenario, $wizard.ScenarioName, 1)
$file.Save('')
