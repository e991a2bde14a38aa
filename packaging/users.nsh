; For whom Ormala is installed, and where to.

; For the installer and for the uninstaller: `un` is "" or "un.".
!macro RIGHTS_FUNCTIONS un
  ; $0 becomes 1 for somebody who may change what belongs to all users, otherwise 0.
  Function ${un}askRights
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 == "Admin"
      StrCpy $0 1
    ${Else}
      StrCpy $0 0
    ${EndIf}
  FunctionEnd

  ; Starts the program $1 once more, as an administrator, and ends this one. Returns if the user
  ; doesn't want that, or if this one should be the administrator already.
  Function ${un}startElevated
    ${GetParameters} $2
    ClearErrors
    ${GetOptions} $2 "/ELEVATED" $3
    ${IfNot} ${Errors}
      Return
    ${EndIf}
    StrCpy $4 "/ALLUSERS /ELEVATED"
    ${If} $givenFolder != ""
      StrCpy $4 "$4 /D=$givenFolder"
    ${EndIf}
    ClearErrors
    ExecShell "runas" "$1" "$4"
    ${IfNot} ${Errors}
      SetErrorLevel 0
      Quit
    ${EndIf}
  FunctionEnd

  ; Goes on only with the rights that it takes. Silently no other program is started for them, since
  ; the caller waits for the end of this one.
  Function ${un}needRights
    Call ${un}askRights
    ${If} $forAllUsers = 0
    ${OrIf} $0 = 1
      Return
    ${EndIf}
    ${IfNot} ${Silent}
      Call ${un}startElevated
    ${EndIf}
    SetErrorLevel ${NEEDS_RIGHTS}
    Quit
  FunctionEnd
!macroend
!insertmacro RIGHTS_FUNCTIONS ""
!insertmacro RIGHTS_FUNCTIONS "un."

Var choiceOfAll

Function readUsers
  StrCpy $givenUsers ""
  ${GetParameters} $1
  ClearErrors
  ${GetOptions} $1 "/CURRENTUSER" $2
  ${IfNot} ${Errors}
    StrCpy $givenUsers 0
  ${EndIf}
  ClearErrors
  ${GetOptions} $1 "/ALLUSERS" $2
  ${IfNot} ${Errors}
    StrCpy $givenUsers 1
  ${EndIf}
FunctionEnd

; As the installation that is there; otherwise for this user alone.
Function proposeUsers
  ReadRegStr $1 HKCU "${KEY}" "InstallLocation"
  ReadRegStr $2 HKLM "${KEY}" "InstallLocation"
  StrCpy $forAllUsers 0
  ${If} $1 == ""
  ${AndIf} $2 != ""
    StrCpy $forAllUsers 1
  ${EndIf}
FunctionEnd

Function chooseFolder
  ${If} $forAllUsers = 1
    SetShellVarContext all
  ${Else}
    SetShellVarContext current
  ${EndIf}
  StrCpy $INSTDIR $givenFolder
  ${If} $INSTDIR == ""
    ReadRegStr $INSTDIR SHCTX "${KEY}" "InstallLocation"
  ${EndIf}
  ${If} $INSTDIR == ""
  ${AndIf} $forAllUsers = 1
    StrCpy $INSTDIR "$PROGRAMFILES64\Ormala"
  ${EndIf}
  ${If} $INSTDIR == ""
    StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Ormala"
  ${EndIf}
FunctionEnd

Function showUsers
  ${If} $givenUsers != ""
    Abort
  ${EndIf}
  !insertmacro MUI_HEADER_TEXT "$(usersTitle)" "$(usersSubtitle)"
  nsDialogs::Create 1018
  Pop $1
  ${NSD_CreateRadioButton} 0 10u 100% 12u "$(usersCurrent)"
  Pop $2
  ${NSD_CreateRadioButton} 0 28u 100% 12u "$(usersAll)"
  Pop $choiceOfAll
  ${NSD_CreateLabel} 0 52u 100% 40u "$(usersNote)"
  Pop $3
  ${NSD_OnClick} $2 showShield
  ${NSD_OnClick} $choiceOfAll showShield
  ${If} $forAllUsers = 1
    StrCpy $2 $choiceOfAll
  ${EndIf}
  ${NSD_Check} $2
  ${NSD_SetFocus} $2
  Push 0
  Call showShield
  nsDialogs::Show
FunctionEnd

; The shield of Windows, on the button whose press asks for rights.
Function showShield
  Pop $0
  Call askRights
  ${NSD_GetState} $choiceOfAll $1
  ${If} $0 = 1
    StrCpy $1 0
  ${EndIf}
  GetDlgItem $2 $HWNDPARENT 1
  SendMessage $2 ${BCM_SETSHIELD} 0 $1
FunctionEnd

Function leaveUsers
  ${NSD_GetState} $choiceOfAll $forAllUsers
  Call askRights
  ${If} $forAllUsers = 1
  ${AndIf} $0 = 0
    StrCpy $1 $EXEPATH
    Call startElevated
    Abort
  ${EndIf}
  GetDlgItem $2 $HWNDPARENT 1
  SendMessage $2 ${BCM_SETSHIELD} 0 0
  Call chooseFolder
FunctionEnd
