// Numbers of the host's resources. A menu command's string of the same number is its status-bar prompt.
#pragma once

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

#define IDI_HOST 1
#define IDR_MENU 1
#define IDR_JOURNAL_MENU 2
#define IDR_KEYS 1

// ---- Menu commands, with their prompts ------------------------------------------------------------
#define IDM_TEST_NEW 1000
#define IDM_TEST_OPEN 1001
#define IDM_TEST_SAVE 1002
#define IDM_TEST_SAVE_AS 1003
#define IDM_TEST_SETTINGS 1004
#define IDM_TEST_EXIT 1005
#define IDM_HELP_CONTENTS 1010
#define IDM_HELP_ABOUT 1011
#define IDM_JOURNAL_COPY 1020
#define IDM_JOURNAL_SELECT_ALL 1021
#define IDM_JOURNAL_WRITE 1022
#define IDM_JOURNAL_CLEAR 1023
// Add-ins' commands; their prompts come with them.
#define IDM_ADDIN_FIRST 2000
#define IDM_ADDIN_LAST 2099
#define IDM_ADDIN_NONE 2100

// ---- Texts ----------------------------------------------------------------------------------------
#define IDS_PRODUCT 100
#define IDS_TITLE 101
#define IDS_UNTITLED 102
#define IDS_TITLE_CHANGED 115
#define IDS_READY 103
#define IDS_CALLS 104
#define IDS_JOURNAL 105
#define IDS_COLUMN_TIME 106
#define IDS_COLUMN_OBJECT 107
#define IDS_COLUMN_OPERATION 108
#define IDS_COLUMN_ARGUMENTS 109
#define IDS_COLUMN_RESULT 110
#define IDS_NO_ADDINS 111
#define IDS_ADDIN_FAILED 112
#define IDS_UNHANDLED 113
#define IDS_NO_OBJECTS 114
#define IDS_JOURNAL_FILTER 120
#define IDS_JOURNAL_WRITE_FAILED 121
#define IDS_TEST_FILTER 122
#define IDS_TEST_OPEN_FAILED 123
#define IDS_TEST_SAVE_FAILED 124
#define IDS_TEST_SAVE_QUESTION 125
#define IDS_HELP_MISSING 130
#define IDS_HELP_NO_VIEWER 131
#define IDS_APPLY_FAILED 140
#define IDS_SOR_REFUSAL 142
#define IDS_SOR_QUESTION 143
#define IDS_SETTINGS_READ_ONLY 144
#define IDS_SOR_TITLE 145

// ---- About ----------------------------------------------------------------------------------------
#define IDD_ABOUT 200

// ---- Test settings frame --------------------------------------------------------------------------
#define IDD_SETTINGS 210
#define IDC_SETTINGS_TABS 0x3020
#define IDC_SETTINGS_APPLY 0x3021
#define IDC_SETTINGS_HELP 9

// ---- Settings tab "SOR" ---------------------------------------------------------------------------
#define IDD_SOR 220
#define IDC_SOR_REQUIRE 2200
#define IDC_SOR_CONFIGURED 2201
#define IDC_SOR_REFUSAL 2202
#define IDC_SOR_QUESTION 2203
