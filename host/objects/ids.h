// Numbers of this module's own resources. They stand apart from the component's, because a test program
// holds both.
#pragma once

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

#define IDS_HOST_REPLACE_FILE 30000
#define IDS_HOST_UNNAMED_OBJECT 30001
#define IDS_HOST_HELP_MISSING 30002

#define IDD_OBJECT_SELECTION 30100
#define IDC_OBJECT_SELECTION_TREE 30101
#define IDC_OBJECT_SELECTION_HELP 30102
