; The installer: for one player, without an administrator. pack.sh says VERSION, WHOLE (the folder of all files)
; and SETUP (the file to make).
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
Name "Orvane"
OutFile "${SETUP}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Orvane"
!define OWN_KEY "Software\Orvane"
!define LIST_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvane"
InstallDirRegKey HKCU "${OWN_KEY}" "Folder"
ManifestDPIAware true
BrandingText " "
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "Orvane"
VIAddVersionKey "FileDescription" "Orvane"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "The Orvane developers"

LoadLanguageFile "${NSISDIR}\Contrib\Language files\English.nlf"
LoadLanguageFile "${NSISDIR}\Contrib\Language files\Japanese.nlf"
LangString Runs ${LANG_ENGLISH} "Orvane.exe cannot be replaced. Close the game, then try again."
LangString Runs ${LANG_JAPANESE} "Orvane.exe を置き換えられません。ゲームを終了してから、もう一度試してください。"
LangString AskSaves ${LANG_ENGLISH} "Delete your saved games too? They cannot be brought back."
LangString AskSaves ${LANG_JAPANESE} "セーブデータも消しますか。消すと元に戻せません。"

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

Section
  SetOutPath "$INSTDIR"
  ; A program that runs can be neither written nor deleted.
  again:
    ClearErrors
    Delete "$INSTDIR\Orvane.exe"
    IfErrors 0 free
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(Runs)" /SD IDCANCEL IDRETRY again
    Abort
  free:
  File "${WHOLE}/Orvane.exe"
  File "${WHOLE}/readme.txt"
  File /r "${WHOLE}/licences"
  SetOutPath "$INSTDIR\game"
  File /r /x *.sav "${WHOLE}/game/*.*"
  ; Saves that are there already are the player's.
  SetOverwrite off
  File "${WHOLE}/game/*.sav"
  SetOverwrite on
  SetOutPath "$INSTDIR"
  CreateShortcut "$SMPROGRAMS\Orvane.lnk" "$INSTDIR\Orvane.exe"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${OWN_KEY}" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${LIST_KEY}" "DisplayName" "Orvane"
  WriteRegStr HKCU "${LIST_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${LIST_KEY}" "DisplayIcon" "$INSTDIR\Orvane.exe"
  WriteRegStr HKCU "${LIST_KEY}" "Publisher" "The Orvane developers"
  WriteRegStr HKCU "${LIST_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${LIST_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${LIST_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${LIST_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${LIST_KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  again:
    ClearErrors
    Delete "$INSTDIR\Orvane.exe"
    IfErrors 0 free
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(Runs)" /SD IDCANCEL IDRETRY again
    Abort
  free:
  ; Without anybody to ask saves stay.
  MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "$(AskSaves)" /SD IDNO IDNO keep
    Delete "$INSTDIR\game\*.sav"
  keep:
  Delete "$INSTDIR\game\Item.dat"
  RMDir /r "$INSTDIR\game\Mapdata"
  RMDir /r "$INSTDIR\game\Sound"
  RMDir "$INSTDIR\game"
  RMDir /r "$INSTDIR\licences"
  Delete "$INSTDIR\readme.txt"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Orvane.lnk"
  ; What the player has chosen goes with the program. A game folder beside it holds saves of copies that could not be
  ; written beside themselves, and stays.
  Delete "$LOCALAPPDATA\Orvane\language.txt"
  RMDir "$LOCALAPPDATA\Orvane"
  DeleteRegKey HKCU "${LIST_KEY}"
  DeleteRegKey HKCU "${OWN_KEY}"
SectionEnd
