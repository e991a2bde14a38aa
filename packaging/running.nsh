; A copy of Ormala that runs: the installer and the uninstaller ask it to close. It saves and asks
; as at any other end; nothing is ended by force.

!define MUTEX "OrmalaTessin_Mutex"
!define WINDOW_CLASS "frmSettings"
!define SYNCHRONIZE 0x00100000
!define GENERIC_WRITE 0x40000000
!define OPEN_EXISTING 3
!define ERROR_ACCESS_DENIED 5
!define ERROR_SHARING_VIOLATION 32
!define WAIT_MILLISECONDS 200
; Fifteen seconds.
!define WAIT_TIMES 75

; For the installer and for the uninstaller: `un` is "" or "un.".
!macro RUNNING_FUNCTIONS un
  ; $0 becomes 1 while a copy runs in this session, or the installed one in another; otherwise 0.
  Function ${un}askRunning
    System::Call 'kernel32::OpenMutexW(i ${SYNCHRONIZE}, i 0, w "${MUTEX}") p.r0 ?e'
    Pop $1
    ${If} $0 P<> 0
      System::Call 'kernel32::CloseHandle(p r0)'
      StrCpy $0 1
      Return
    ${ElseIf} $1 = ${ERROR_ACCESS_DENIED}
      StrCpy $0 1
      Return
    ${EndIf}
    System::Call 'kernel32::CreateFileW(w "$INSTDIR\Ormala.exe", i ${GENERIC_WRITE}, i 0, p 0, \
        i ${OPEN_EXISTING}, i 0, p 0) p.r0 ?e'
    Pop $1
    ${If} $0 P<> -1
      System::Call 'kernel32::CloseHandle(p r0)'
    ${EndIf}
    StrCpy $0 0
    ${If} $1 = ${ERROR_SHARING_VIOLATION}
      StrCpy $0 1
    ${EndIf}
  FunctionEnd

  ; Posted, not sent: a question of the program's must not hold this one up.
  Function ${un}postClose
    StrCpy $1 0
    ${Do}
      FindWindow $1 "${WINDOW_CLASS}" "" 0 $1
      ${If} $1 P= 0
        ${ExitDo}
      ${EndIf}
      System::Call 'user32::PostMessageW(p r1, i ${WM_CLOSE}, p 0, p 0)'
    ${Loop}
  FunctionEnd

  Function ${un}waitForEnd
    StrCpy $2 0
    ${Do}
      Call ${un}askRunning
      ${If} $0 = 0
      ${OrIf} $2 = ${WAIT_TIMES}
        ${ExitDo}
      ${EndIf}
      Sleep ${WAIT_MILLISECONDS}
      IntOp $2 $2 + 1
    ${Loop}
  FunctionEnd

  ; Afterwards no copy runs, or the error flag is set.
  Function ${un}closeProgram
    ClearErrors
    Call ${un}askRunning
    ${DoWhile} $0 = 1
      MessageBox MB_OKCANCEL|MB_ICONINFORMATION|MB_TOPMOST|MB_SETFOREGROUND "$(isRunning)" \
          /SD IDOK IDOK close
        SetErrors
        Return
      close:
      Call ${un}postClose
      Call ${un}waitForEnd
      ${If} $0 = 1
      ${AndIf} ${Silent}
        SetErrors
        Return
      ${EndIf}
    ${Loop}
    ClearErrors
  FunctionEnd

  ; Before the first page, which the worksheet would cover.
  Function ${un}closeFirst
    Call ${un}closeProgram
    ${If} ${Errors}
      SetErrorLevel 1
      Quit
    ${EndIf}
  FunctionEnd

  Function ${un}closeOrAbort
    Call ${un}closeProgram
    ${If} ${Errors}
      SetErrorLevel 2
      Abort "$(stillRuns)"
    ${EndIf}
  FunctionEnd
!macroend
!insertmacro RUNNING_FUNCTIONS ""
!insertmacro RUNNING_FUNCTIONS "un."
