// The frame of every wizard page: the picture on the left, the bold title, one font.
#pragma once

#define WIZARD_PAGE(id)                                                            \
    id DIALOGEX 0, 0, 380, 230                                                     \
    STYLE DS_SHELLFONT | DS_CONTROL | WS_CHILD | WS_DISABLED | WS_CAPTION          \
    EXSTYLE WS_EX_CONTROLPARENT                                                    \
    CAPTION "Recovery Scenario Wizard"                                             \
    FONT 8, "MS Shell Dlg", 400, 0, 1

#define PAGE_FRAME(title)                                                          \
    CONTROL "", IDC_PAGE_BITMAP, "Static", SS_BITMAP | SS_REALSIZECONTROL, 0, 0, 90, 230 \
    LTEXT title, IDC_PAGE_TITLE, 100, 7, 273, 14
