; A small product with the entries that installers write: makensis -DPROGRAM=... -DOUTPUT=... sample.nsi
Unicode true
Target amd64-unicode
Name "Sample Player"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\Sample Player"
RequestExecutionLevel user
SilentInstall silent
SilentUnInstall silent

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\SamplePlayer"

Section
  SetRegView 64
  SetOutPath "$INSTDIR\bin"
  File "/oname=player.exe" "${PROGRAM}"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayName" "Sample Player"
  WriteRegStr HKLM "${UNINSTALL}" "DisplayIcon" '"$INSTDIR\bin\player.exe",0'
  WriteRegStr HKLM "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL}" "Publisher" "Samples"
  WriteRegStr HKLM "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
SectionEnd

Section "Uninstall"
  SetRegView 64
  Delete "$INSTDIR\bin\player.exe"
  RMDir "$INSTDIR\bin"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKLM "${UNINSTALL}"
SectionEnd
