// An application under test: a message with two buttons, in a process of its own. Its title is its argument.
#include "harness/ApplicationWindow.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR title, int) {
    recoveryui::test::MakeApplication(title, {860, 600, 340, 150},
                                      {{L"Static", L"The order could not be saved.", 10, {20, 20, 280, 20}},
                                       {L"Button", L"&Try Again", 11, {60, 70, 100, 26}},
                                       {L"Button", L"Discard", 12, {170, 70, 100, 26}}});
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return 0;
}
