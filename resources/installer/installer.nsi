; The installer for one user, without an administrator's rights. scripts/package names STAGE, VERSION,
; OUTPUT, SIZE and the time of every file, and lists the files in LISTS/files.nsh and their folders in
; LISTS/folders.nsh: those, and nothing else, are written and taken away again.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all
AllowSkipFiles off
XPStyle on
; Only what is installed keeps its time, not what the pages show: that has the time of a checkout.
SetDateSave off

!include "MUI2.nsh"
!include "FileFunc.nsh"
!include "LogicLib.nsh"

!define WIZARD "KorvenTallyWizard.exe"
!define UNINSTALLER "uninstall.exe"
!define PROGRAMS_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define UNINSTALL_KEY "${PROGRAMS_KEY}\KorvenTally"
!define ASSOCIATIONS "Software\Classes\SystemFileAssociations"
!define VERB "${ASSOCIATIONS}\.inp\shell\KorvenTally"
; Beside NSIS's own: 0, all is done; 1, the user has cancelled; 2, it gave up.
!define IN_USE 3

Name "KorvenTally"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\KorvenTally"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "KorvenTally ${VERSION}"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey ProductName "KorvenTally"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs KorvenTally"
VIAddVersionKey LegalCopyright ""

!define MUI_ICON "${ROOT}/resources/images/korventally.ico"
!define MUI_UNICON "${MUI_ICON}"
!define MUI_COMPONENTSPAGE_TEXT_TOP "Setup puts the programs, the guide and a sample study into a \
  folder of your own. It needs no administrator's rights and changes nothing for other users."
!define MUI_DIRECTORYPAGE_TEXT_TOP "Where shall KorvenTally go? A version that is installed already \
  is replaced. Files of your own in its folder stay."
!define MUI_WELCOMEFINISHPAGE_BITMAP "${ROOT}/resources/images/installer.bmp"
!define MUI_FINISHPAGE_TITLE "KorvenTally ${VERSION} is installed"
!define MUI_FINISHPAGE_TEXT "The start menu has entries for the program and its guide. A first case \
  with the sample study takes five minutes."
!define MUI_FINISHPAGE_NOREBOOTSUPPORT
!define MUI_FINISHPAGE_RUN "$INSTDIR\${WIZARD}"
!define MUI_FINISHPAGE_RUN_TEXT "Start KorvenTally"
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\guide\first-case.html"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Show the guide's first case"
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED
!define MUI_UNCONFIRMPAGE_TEXT_TOP "KorvenTally will be removed from this folder. Files of your own in \
  it stay, and so do the results of your cases, wherever they are."
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A program that runs, or whose file another program holds, can be neither replaced nor removed.
!macro AskUntilFree PROGRAM
  ${Do}
    ${IfNot} ${FileExists} "$INSTDIR\${PROGRAM}"
      ${Break}
    ${EndIf}
    ClearErrors
    FileOpen $0 "$INSTDIR\${PROGRAM}" a
    ${IfNot} ${Errors}
      FileClose $0
      ${Break}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$INSTDIR\${PROGRAM} is in use.$\r$\n\
      $\r$\nClose KorvenTally, wait for a case that is being run, and press Retry." /SD IDCANCEL IDCANCEL`
      SetErrorLevel ${IN_USE}
      Quit
    ${EndIf}
  ${Loop}
!macroend

; The version that is there takes away its own files, and only those, so that none of them stays that
; the new version no longer has. Its folder is in $1.
Function RemoveVersion
  ${If} $1 == ""
  ${OrIfNot} ${FileExists} "$1\${UNINSTALLER}"
    Return
  ${EndIf}
  DetailPrint "Removing the version in $1"
  ExecWait '"$1\${UNINSTALLER}" /S _?=$1' $0
  ${If} $0 != 0
    MessageBox MB_OK|MB_ICONSTOP "The version in $1 could not be removed. Close KorvenTally and start \
      the setup again." /SD IDOK
    SetErrorLevel $0
    Quit
  ${EndIf}
  Delete "$1\${UNINSTALLER}"
  RMDir "$1"
FunctionEnd

; What lies where a file of ours goes is somebody else's, such as an engine of the user's own: it gets
; another name. The path is on the stack.
Function MakeRoom
  Exch $0
  ${If} ${FileExists} "$0"
    StrCpy $1 1
    ${While} ${FileExists} "$0.old$1"
      IntOp $1 $1 + 1
    ${EndWhile}
    Rename "$0" "$0.old$1"
    DetailPrint "Kept: $0.old$1"
  ${EndIf}
  Pop $0
FunctionEnd

!macro Put FOLDER NAME BYTES
  SetOutPath "$INSTDIR${FOLDER}"
  Push "$INSTDIR${FOLDER}\${NAME}"
  Call MakeRoom
  File "${STAGE}${FOLDER}\${NAME}"
!macroend

; Deletes a file as long as it is as it was installed: size and path are on the stack.
Function un.Take
  Exch $0
  Exch
  Exch $1
  ClearErrors
  FileOpen $2 "$0" r
  ${IfNot} ${Errors}
    FileSeek $2 0 END $3
    FileClose $2
    GetFileTime "$0" $4 $5
    ${If} $3 == $1
    ${AndIf} $4 == ${TIME_HIGH}
    ${AndIf} $5 == ${TIME_LOW}
      Delete "$0"
    ${Else}
      DetailPrint "Changed since, and kept: $0"
    ${EndIf}
  ${EndIf}
  Pop $1
  Pop $0
FunctionEnd

!macro Take FOLDER NAME BYTES
  Push "${BYTES}"
  Push "$INSTDIR${FOLDER}\${NAME}"
  Call un.Take
!macroend

Section "KorvenTally" MAIN
  SectionIn RO
  !insertmacro AskUntilFree "${WIZARD}"
  !insertmacro AskUntilFree "korventally.exe"
  ReadRegStr $1 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  Call RemoveVersion
  StrCpy $1 "$INSTDIR"
  Call RemoveVersion
  ; First what takes all of it away again, should the rest fail.
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\${UNINSTALLER}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "KorvenTally"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\${WIZARD}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  SetDateSave on
  !define EACH Put
  !include "${LISTS}/files.nsh"
  !undef EACH
  SetDateSave off
  SetOutPath "$INSTDIR"
  CreateDirectory "$SMPROGRAMS\KorvenTally"
  CreateShortcut "$SMPROGRAMS\KorvenTally\KorvenTally.lnk" "$INSTDIR\${WIZARD}"
  CreateShortcut "$SMPROGRAMS\KorvenTally\KorvenTally guide.lnk" "$INSTDIR\guide\index.html"
SectionEnd

; A verb beside those that files of the ending have: what a double click does stays as it is.
Section /o "Open control files (.inp)" OPEN
  WriteRegStr HKCU "${VERB}" "" "Open with &KorvenTally"
  WriteRegStr HKCU "${VERB}" "Icon" "$INSTDIR\${WIZARD}"
  WriteRegStr HKCU "${VERB}\command" "" '"$INSTDIR\${WIZARD}" "%1"'
SectionEnd

LangString ABOUT_MAIN 1033 "The wizard, the engine, the guide and a sample study."
LangString ABOUT_OPEN 1033 "Adds $\"Open with KorvenTally$\" to the menu of the right mouse button on \
  .inp files. A double click does what it did before."
!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${MAIN} $(ABOUT_MAIN)
  !insertmacro MUI_DESCRIPTION_TEXT ${OPEN} $(ABOUT_OPEN)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; What was chosen once stays chosen. A silent setup is told with /CONTROLFILES.
Function .onInit
  ReadRegStr $0 HKCU "${VERB}\command" ""
  ${GetParameters} $1
  ClearErrors
  ${GetOptions} $1 "/CONTROLFILES" $2
  ${IfNot} ${Errors}
  ${OrIf} $0 != ""
    !insertmacro SelectSection ${OPEN}
  ${EndIf}
FunctionEnd

Section "Uninstall"
  !insertmacro AskUntilFree "${WIZARD}"
  !insertmacro AskUntilFree "korventally.exe"
  Delete "$SMPROGRAMS\KorvenTally\KorvenTally.lnk"
  Delete "$SMPROGRAMS\KorvenTally\KorvenTally guide.lnk"
  RMDir "$SMPROGRAMS\KorvenTally"
  DeleteRegKey HKCU "${VERB}"
  DeleteRegKey /ifempty HKCU "${ASSOCIATIONS}\.inp\shell"
  DeleteRegKey /ifempty HKCU "${ASSOCIATIONS}\.inp"
  DeleteRegKey /ifempty HKCU "${ASSOCIATIONS}"
  !define EACH Take
  !include "${LISTS}/files.nsh"
  !undef EACH
  Delete "$INSTDIR\${UNINSTALLER}"
  SetOutPath "$TEMP"
  !include "${LISTS}/folders.nsh"
  RMDir "$LOCALAPPDATA\Programs"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey /ifempty HKCU "${PROGRAMS_KEY}"
SectionEnd
