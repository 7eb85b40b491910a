# The installer. scripts/packing.sh defines TARGET, VIEW (64 or 32), OTHER_VIEW, VERSION, STAGE (the folder with
# the files), HELPER (search_path.exe), INSTALL_LIST and REMOVE_LIST (one instruction per file) and OUTPUT.
# Exit codes: 0 done, 1 cancelled by the user, 2 failed, 3 not possible here.
Target ${TARGET}
!pragma warning disable 6012 # labels of LogicLib that a simple condition does not use
ManifestDPIAware true
RequestExecutionLevel admin
SetCompressor /SOLID lzma
!include LogicLib.nsh
!include x64.nsh
!include MUI2.nsh

!define TITLE "Recovery UI for Tovarin"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\TovarinRecoveryUI"

Name "${TITLE} ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES${VIEW}\Tovarin\RecoveryUI"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Tovarin"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${TITLE}, installation"
VIAddVersionKey "LegalCopyright" ""

BrandingText " "
!define MUI_ICON "../host/app/art/tovarin_host.ico"
!define MUI_UNICON "${MUI_ICON}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

!macro Fail CODE TEXT
  MessageBox MB_OK|MB_ICONSTOP "${TEXT}" /SD IDOK
  SetErrorLevel ${CODE}
  Quit
!macroend

# The folder on the search path is how every program finds the component: it is registered by its name alone.
!macro SearchPath VERB
  InitPluginsDir
  File "/oname=$PLUGINSDIR\search_path.exe" "${HELPER}"
  ExecWait '"$PLUGINSDIR\search_path.exe" ${VERB} "$INSTDIR"' $0
!macroend

!macro Regsvr32 SWITCHES
  StrCpy $0 2
  ExecWait '"$SYSDIR\regsvr32.exe" /s ${SWITCHES} "$INSTDIR\RecoveryUI.dll"' $0
!macroend

Function .onInit
  SetShellVarContext all
  !if ${VIEW} = 64
    ${IfNot} ${RunningX64}
      !insertmacro Fail 3 "This version needs a 64-bit Windows."
    ${EndIf}
  !endif
  # The type library, the ProgIDs and the search path are one for programs of either width.
  ${If} ${RunningX64}
    SetRegView ${OTHER_VIEW}
    ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
    ${If} $0 != ""
      !insertmacro Fail 3 "The ${OTHER_VIEW}-bit version is installed. Remove it first."
    ${EndIf}
  ${EndIf}
  SetRegView ${VIEW}
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 != ""
  ${AndIf} $InstDir == "$PROGRAMFILES${VIEW}\Tovarin\RecoveryUI"
    StrCpy $InstDir $0
  ${EndIf}
FunctionEnd

# The version that is there leaves first; a file of it in use stops everything before anything has changed.
Function RemoveOldVersion
  ReadRegStr $1 HKLM "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $1 == ""
    Return
  ${EndIf}
  ExecWait '"$1\uninstall.exe" /S _?=$1' $0
  ${If} $0 <> 0
    !insertmacro Fail 2 "The installed version cannot be removed. Close every program that uses it."
  ${EndIf}
  Delete "$1\uninstall.exe"
  RMDir "$1"
FunctionEnd

Section
  Call RemoveOldVersion
  ClearErrors
  !include "${INSTALL_LIST}"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "${TITLE}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\TovarinHost.exe"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "Tovarin"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
  CreateShortcut "$SMPROGRAMS\Tovarin reference host.lnk" "$INSTDIR\TovarinHost.exe"
  ${If} ${Errors}
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
    !insertmacro Fail 2 "The files cannot be written to $INSTDIR."
  ${EndIf}
  !insertmacro SearchPath add
  ${If} $0 = 0
    !insertmacro Regsvr32 ""
  ${EndIf}
  ${If} $0 <> 0
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    !insertmacro Fail 2 "The component cannot be registered (code $0)."
  ${EndIf}
SectionEnd

Function un.onInit
  SetShellVarContext all
  SetRegView ${VIEW}
FunctionEnd

Section Uninstall
  # What is in use cannot be opened for writing; nothing has changed yet then.
  ${If} ${FileExists} "$INSTDIR\RecoveryUI.dll"
    ClearErrors
    FileOpen $0 "$INSTDIR\RecoveryUI.dll" a
    ${If} ${Errors}
      !insertmacro Fail 2 "RecoveryUI.dll is in use. Close every program that uses it."
    ${EndIf}
    FileClose $0
  ${EndIf}
  !insertmacro Regsvr32 "/u"
  !insertmacro SearchPath remove
  Delete "$SMPROGRAMS\Tovarin reference host.lnk"
  DeleteRegKey HKLM "${UNINSTALL_KEY}"
  SetOutPath "$TEMP"
  !include "${REMOVE_LIST}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  RMDir "$INSTDIR\.."
SectionEnd
