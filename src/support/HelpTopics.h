// Names of the help topics, one per page and dialog.
#pragma once

namespace recoveryui::support::topics {

inline constexpr const wchar_t* kWelcome = L"Recovery_Scenario_Wizard_Welcome.htm";
inline constexpr const wchar_t* kSelectTrigger = L"Recovery_Scenario_Wizard_Select_Trigger.htm";
inline constexpr const wchar_t* kPopup = L"Recovery_Scenario_Wizard_Popup.htm";
inline constexpr const wchar_t* kSelectObject = L"Recovery_Scenario_Wizard_Object_State.htm";
inline constexpr const wchar_t* kObjectProps = L"Recovery_Scenario_Wizard_Properties_Values.htm";
inline constexpr const wchar_t* kSelectError = L"Recovery_Scenario_Wizard_Test_Run.htm";
inline constexpr const wchar_t* kCrash = L"Recovery_Scenario_Wizard_Application_Crash.htm";
inline constexpr const wchar_t* kOperationList = L"Recovery_Scenario_Wizard_Recovery_Ops.htm";
inline constexpr const wchar_t* kSelectOperation = L"Recovery_Scenario_Wizard_Recovery_Op.htm";
inline constexpr const wchar_t* kOperationClick = L"Recovery_Scenario_Wizard_Click_Button.htm";
inline constexpr const wchar_t* kOperationFunc = L"Recovery_Scenario_Wizard_Function.htm";
inline constexpr const wchar_t* kCloseProcesses = L"Recovery_Scenario_Wizard_Close_Processes.htm";
inline constexpr const wchar_t* kTestFlow = L"Recovery_Scenario_Wizard_Post_Recovery.htm";
inline constexpr const wchar_t* kScenDescription = L"Recovery_Scenario_Wizard_Name_Description.htm";
inline constexpr const wchar_t* kSummary = L"Recovery_Scenario_Wizard_Finish.htm";
inline constexpr const wchar_t* kObjectSelection = L"OS_Object_State.htm";

inline constexpr const wchar_t* kManager = L"Und_Recovery_Scenario_Manager_Dialog_Box.htm";
inline constexpr const wchar_t* kAddScenario = L"Und_Add_Recovery_Scenario_Dialog_Box.htm";
inline constexpr const wchar_t* kScenarioProperties = L"Und_Recovery_Scenario_Properties_Dialog_Box.htm";
inline constexpr const wchar_t* kRecoveryTab = L"Test_Settings_-_Recovery_tab.htm";

}  // namespace recoveryui::support::topics
