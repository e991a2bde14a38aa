; The uninstaller: removes what was installed and nothing else; settings and tools on request.
;
;   /S             asks and shows nothing; settings and tools stay
;   /UPDATE        a newer version is about to be installed: only the files go

Var choiceOfSettings
Var removesSettings
; Of the user who removes it, also where it was installed for all.
Var settingsFolder

Function un.onInit
  SetRegView 64
  StrCpy $removesSettings 0
  StrCpy $settingsFolder "$APPDATA\Ormala"
  StrCpy $forAllUsers 0
  ReadRegStr $1 HKLM "${KEY}" "InstallLocation"
  ${If} $1 == $INSTDIR
    StrCpy $forAllUsers 1
    SetShellVarContext all
  ${EndIf}
  StrCpy $1 "$INSTDIR\Uninstall.exe"
  Call un.needRights
  ${IfNot} ${Silent}
    Call un.closeFirst
  ${EndIf}
FunctionEnd

Function un.showSettings
  !insertmacro MUI_HEADER_TEXT "$(removeTitle)" "$(removeSubtitle)"
  nsDialogs::Create 1018
  Pop $1
  ${NSD_CreateLabel} 0 6u 100% 24u "$(removeFolder)$\r$\n$INSTDIR"
  Pop $1
  ${NSD_CreateCheckbox} 0 40u 100% 12u "$(removeSettings)"
  Pop $choiceOfSettings
  ${NSD_CreateLabel} 12u 54u 280u 36u "$(removeNote)"
  Pop $1
  ${NSD_SetState} $choiceOfSettings $removesSettings
  ${NSD_SetFocus} $choiceOfSettings
  GetDlgItem $1 $HWNDPARENT 1
  SendMessage $1 ${WM_SETTEXT} 0 "STR:$(^UninstallBtn)"
  nsDialogs::Show
FunctionEnd

Function un.leaveSettings
  ${NSD_GetState} $choiceOfSettings $removesSettings
FunctionEnd

; The options and the tools of the last run, with the copies that Ormala keeps of either, and what a
; save left that was cut short. What the user has saved in this folder stays.
Function un.deleteSettings
  Delete "$settingsFolder\Ormala.ini"
  Delete "$settingsFolder\Ormala (kept *).ini"
  Delete "$settingsFolder\Ormala (other*).ini"
  Delete "$settingsFolder\Ormala (previous).ini"
  Delete "$settingsFolder\Ormala Tools.ini"
  Delete "$settingsFolder\Ormala Tools (kept *).ini"
  Delete "$settingsFolder\Ormala Tools (other*).ini"
  Delete "$settingsFolder\Ormala Tools (previous).ini"
  Delete "$settingsFolder\~settings-*.tmp"
  RMDir "$settingsFolder"
FunctionEnd

Section "un."
  Call un.closeOrAbort
  !include "${REMOVED}"
  ${GetParameters} $1
  ClearErrors
  ${GetOptions} $1 "/UPDATE" $2
  ${IfNot} ${Errors}
    Return
  ${EndIf}
  Delete "$SMPROGRAMS\Ormala.lnk"
  DeleteRegKey SHCTX "${KEY}"
  ${If} $removesSettings = 1
    Call un.deleteSettings
  ${EndIf}
  ; Last, so that who waits for it finds all done.
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd
