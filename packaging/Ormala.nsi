; The installer. tools/package calls makensis with what is defined nowhere here: VERSION, KILOBYTES,
; ICON, PICTURE, OUTPUT, the lists of files INSTALLED and REMOVED, and SIGN if it is to be signed.
; It ends with 0 if all went well, 1 if it was cancelled, 2 if Ormala still runs or a file could not
; be written, 3 if administrator rights are needed.
;
;   /S             asks and shows nothing
;   /ALLUSERS      for all users of the computer
;   /CURRENTUSER   for the user who runs it
;   /D=FOLDER      where to, without quotation marks and as the last

!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Ormala"
!define PUBLISHER "The Ormala authors"
!define NEEDS_RIGHTS 3

!include "MUI2.nsh"
!include "LogicLib.nsh"
!include "FileFunc.nsh"
!include "nsDialogs.nsh"
!include "WinMessages.nsh"

Name "Ormala"
OutFile "${OUTPUT}"
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS Win10
SetCompressor /SOLID zlib
SetDateSave off
AllowSkipFiles off
BrandingText "Ormala ${VERSION}"
ShowInstDetails nevershow
ShowUninstDetails nevershow
!ifdef SIGN
  !uninstfinalize '${SIGN} "%1"' = 0
!endif

; 1 or 0.
Var forAllUsers
; What the command line says of it, or nothing.
Var givenUsers
; The folder of the command line, or nothing.
Var givenFolder

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
Page custom showUsers leaveUsers
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION runProgram
!insertmacro MUI_PAGE_FINISH
UninstPage custom un.showSettings un.leaveSettings
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"
!include "texts.nsh"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=0 "ProductName" "Ormala"
VIAddVersionKey /LANG=0 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=0 "FileDescription" "Ormala Setup"
VIAddVersionKey /LANG=0 "CompanyName" "${PUBLISHER}"
VIAddVersionKey /LANG=0 "LegalCopyright" "© 2026 ${PUBLISHER}"

!include "running.nsh"
!include "users.nsh"
!include "removal.nsh"

Function .onInit
  SetRegView 64
  StrCpy $givenFolder $INSTDIR
  Call readUsers
  ${If} $givenUsers != ""
    StrCpy $forAllUsers $givenUsers
  ${Else}
    Call proposeUsers
  ${EndIf}
  ${If} ${Silent}
  ${OrIf} $givenUsers != ""
    StrCpy $1 $EXEPATH
    Call needRights
  ${EndIf}
  Call chooseFolder
  ${IfNot} ${Silent}
    Call closeFirst
  ${EndIf}
FunctionEnd

; What the former version installed goes first, so that nothing stays that this one has no more.
; Its shortcut stays, and with it its place in the start menu and on the task bar.
Function removeFormer
  ReadRegStr $1 SHCTX "${KEY}" "InstallLocation"
  ${If} $1 == ""
  ${OrIfNot} ${FileExists} "$1\Uninstall.exe"
    Return
  ${EndIf}
  ExecWait '"$1\Uninstall.exe" /S /UPDATE _?=$1' $2
  ${If} $1 != $INSTDIR
    Delete "$1\Uninstall.exe"
    RMDir "$1"
  ${EndIf}
FunctionEnd

Section
  Call closeOrAbort
  Call removeFormer
  !include "${INSTALLED}"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Ormala.lnk" "$INSTDIR\Ormala.exe" "" "" "" "" "" "$(description)"

  WriteRegStr SHCTX "${KEY}" "DisplayName" "Ormala"
  WriteRegStr SHCTX "${KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${KEY}" "Publisher" "${PUBLISHER}"
  WriteRegStr SHCTX "${KEY}" "DisplayIcon" "$INSTDIR\Ormala.exe,0"
  WriteRegStr SHCTX "${KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr SHCTX "${KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD SHCTX "${KEY}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD SHCTX "${KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${KEY}" "NoRepair" 1
SectionEnd

; By way of the desktop, so that it doesn't inherit the rights of an administrator.
Function runProgram
  Exec '"$WINDIR\explorer.exe" "$INSTDIR\Ormala.exe"'
FunctionEnd
