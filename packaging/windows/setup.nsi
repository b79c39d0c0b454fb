; The setup. Needs VERSION, ICON, STAGE (the folder of all files), LISTS (of list_files.sh) and OUTPUT.
; /S installs silently, /AllUsers or /CurrentUser selects for whom, /D=FOLDER the folder.
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true

!define NAME "Ostrane.dat-tool"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
!define CLASSES "Software\Classes"
!define APPLICATION "${CLASSES}\Applications\ostrane-dat-tool.exe"
!define OPEN_WITH "${CLASSES}\.dat\OpenWithList"
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "${NAME}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "InstallLocation"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "InstallLocation"
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh

Name "${NAME}"
OutFile "${OUTPUT}"
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} setup"
VIAddVersionKey "LegalCopyright" "The Ostrane.dat-tool developers, MIT licence"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${MUI_ICON}"
!insertmacro MUI_PAGE_LICENSE "${STAGE}/LICENSE.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

Function .onInit
  !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
  !insertmacro MULTIUSER_UNINIT
FunctionEnd

; A running program cannot be replaced or removed.
!macro RequireEndedProgram
  ClearErrors
  Delete "$INSTDIR\ostrane-dat-tool.exe"
  Delete "$INSTDIR\ostrane-dat.exe"
  ${If} ${Errors}
    MessageBox MB_ICONSTOP "${NAME} is running. Close it first." /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
!macroend

Section
  !insertmacro RequireEndedProgram
  !include "${LISTS}/install.nsh"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ; The program saves into its working folder. For all users that folder is each user's own.
  ${If} $MultiUser.InstallMode == "AllUsers"
    StrCpy $OUTDIR "%USERPROFILE%\Documents"
  ${Else}
    StrCpy $OUTDIR "$DOCUMENTS"
  ${EndIf}
  CreateShortCut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\ostrane-dat-tool.exe"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayName" "${NAME}"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL}" "DisplayIcon" "$INSTDIR\ostrane-dat-tool.exe"
  WriteRegStr SHCTX "${UNINSTALL}" "Publisher" "The Ostrane.dat-tool developers"
  WriteRegStr SHCTX "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
  WriteRegStr SHCTX "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL}" "NoRepair" 1
  ; "Open with" of a .dat file offers the program. What opens such files by default stays.
  WriteRegStr SHCTX "${APPLICATION}" "FriendlyAppName" "${NAME}"
  WriteRegStr SHCTX "${APPLICATION}\SupportedTypes" ".dat" ""
  WriteRegStr SHCTX "${APPLICATION}\shell\open\command" "" '"$INSTDIR\ostrane-dat-tool.exe" "%1"'
  WriteRegStr SHCTX "${OPEN_WITH}\ostrane-dat-tool.exe" "" ""
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD SHCTX "${UNINSTALL}" "EstimatedSize" "$0"
SectionEnd

; Removes nothing that the setup has not installed.
Section "Uninstall"
  !insertmacro RequireEndedProgram
  !include "${LISTS}/uninstall.nsh"
  Delete "$INSTDIR\uninstall.exe"
  Delete "$SMPROGRAMS\${NAME}.lnk"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  DeleteRegKey SHCTX "${UNINSTALL}"
  DeleteRegKey SHCTX "${APPLICATION}"
  DeleteRegKey SHCTX "${OPEN_WITH}\ostrane-dat-tool.exe"
  DeleteRegKey /ifempty SHCTX "${OPEN_WITH}"
  DeleteRegKey /ifempty SHCTX "${CLASSES}\.dat"
SectionEnd
