// A string table for tests of plain units: the words that they read, written as the product has them.
#pragma once

#include <map>
#include <string>

#include "resources/ids.h"
#include "support/Text.h"

namespace recoveryui::test {

inline support::Strings FakeStrings() {
    return [](int id) -> std::wstring {
        static const std::map<int, std::wstring> kTable = {
            {IDS_TRIGGER_OBJECT_STATE, L"Object state"},
            {IDS_TRIGGER_POPUP, L"Pop-up window"},
            {IDS_TRIGGER_ERROR, L"Test run error"},
            {IDS_TRIGGER_CRASH, L"Application crash"},
            {IDS_OPERATION_KEYBOARD_OR_MOUSE, L"Keyboard or mouse operation"},
            {IDS_OPERATION_FUNCTION, L"Function call"},
            {IDS_OPERATION_CLOSE_PROCESS, L"Close process"},
            {IDS_OPERATION_RESTART, L"Restart Microsoft Windows"},
            {IDS_SUMMARY_TRIGGER, L"Trigger Event:\r\n\t"},
            {IDS_SUMMARY_OPERATIONS, L"Recovery Operations:\r\n"},
            {IDS_SUMMARY_OPTION, L"Post-Recovery Test Run Options:\r\n\t"},
            {IDS_OPTION_REPEAT_STEP, L"Repeat current step and continue"},
            {IDS_OPTION_RESTART_RUN, L"Restart current test run"},
            {IDS_OPTION_STOP_RUN, L"Stop the test run"},
            {IDS_KEY_ENTER, L"Enter"},
            {IDS_KEY_SHIFT, L"Shift"},
            {IDS_KEY_CONTROL, L"Control"},
            {IDS_KEY_ALT, L"Alt"},
            {IDS_KEY_ESCAPE, L"Esc"},
        };
        return kTable.at(id);
    };
}

}  // namespace recoveryui::test
