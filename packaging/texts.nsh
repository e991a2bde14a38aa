; What the installer and the uninstaller say besides the texts of their pages.

!macro TEXT name english german
  LangString ${name} ${LANG_ENGLISH} "${english}"
  LangString ${name} ${LANG_GERMAN} "${german}"
!macroend
!define TEXT "!insertmacro TEXT"

${TEXT} description "Proportions on the screen" "Proportionen auf dem Bildschirm"
${TEXT} isRunning \
    "Ormala is running. OK closes it; it saves, and asks you first where that needs an answer." \
    "Ormala läuft. OK beendet es; es speichert und fragt vorher, wo das eine Antwort braucht."
${TEXT} stillRuns "Ormala is still running." "Ormala läuft noch."

${TEXT} usersTitle "Who uses Ormala?" "Wer benutzt Ormala?"
${TEXT} usersSubtitle "Choose for whom Ormala is installed." \
    "Wählen Sie, für wen Ormala installiert wird."
${TEXT} usersCurrent "Only &me" "Nur &ich"
${TEXT} usersAll "&All users of this computer" "&Alle Benutzer dieses Computers"
${TEXT} usersNote \
    "For all users Windows asks for an administrator. Everybody has settings and tools of their own \
    either way." \
    "Für alle Benutzer fragt Windows nach einem Administrator. Einstellungen und Werkzeuge hat so \
    oder so jeder für sich."

${TEXT} removeTitle "Remove Ormala" "Ormala entfernen"
${TEXT} removeSubtitle "Ormala is removed from this computer." \
    "Ormala wird von diesem Computer entfernt."
${TEXT} removeFolder "Ormala is removed from this folder:" \
    "Ormala wird aus diesem Ordner entfernt:"
${TEXT} removeSettings "Remove my &settings and tools too" \
    "Auch meine &Einstellungen und Werkzeuge entfernen"
${TEXT} removeNote \
    "The options and the tools of the last run, in the folder $settingsFolder. Sets of tools that \
    you have saved in files of your own stay." \
    "Die Optionen und die Werkzeuge vom letzten Mal, im Ordner $settingsFolder. Werkzeuge, die \
    Sie in eigenen Dateien gespeichert haben, bleiben."
