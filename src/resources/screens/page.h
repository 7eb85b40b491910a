// What the pages of a sheet have in common.
#pragma once

// Every wizard page: the picture on the left, the bold title, one font.
#define WIZARD_PAGE(id)                                                            \
    id DIALOGEX 0, 0, 380, 230                                                     \
    STYLE DS_SHELLFONT | DS_CONTROL | WS_CHILD | WS_DISABLED | WS_CAPTION          \
    EXSTYLE WS_EX_CONTROLPARENT                                                    \
    CAPTION "Recovery Scenario Wizard"                                             \
    FONT 8, "MS Shell Dlg", 400, 0, 1

#define PAGE_FRAME(title)                                                          \
    CONTROL "", IDC_PAGE_BITMAP, "Static", SS_BITMAP | SS_REALSIZECONTROL | WS_GROUP, 0, 0, 90, 230 \
    LTEXT title, IDC_PAGE_TITLE, 100, 7, 273, 14

// A page of the properties sheet; its caption is its tab.
#define PROPERTIES_PAGE(id, caption)                                               \
    id DIALOGEX 0, 0, 260, 190                                                     \
    STYLE DS_SHELLFONT | DS_CONTROL | WS_CHILD | WS_DISABLED | WS_CAPTION          \
    EXSTYLE WS_EX_CONTROLPARENT                                                    \
    CAPTION caption                                                                \
    FONT 8, "MS Shell Dlg", 400, 0, 1
