; The installer: for the user who starts it alone, without an administrator's rights. /S installs without a question,
; /D=FOLDER (the last word, unquoted) to another place.
; makensis -DVERSION=1.2 -DTREE=FOLDER -DICON=kelvo.ico -DOUT=setup.exe setup.nsi
Unicode true
Target amd64-unicode
ManifestDPIAware true
ManifestSupportedOS all
SetCompressor /SOLID lzma
RequestExecutionLevel user
Name "Kelvo"
OutFile "${OUT}"
Icon "${ICON}"
UninstallIcon "${ICON}"
InstallDir "$LOCALAPPDATA\Programs\Kelvo"
InstallDirRegKey HKCU "Software\Kelvo\Setup" "Folder"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "Kelvo"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installs Kelvo"
VIAddVersionKey "LegalCopyright" "MIT licence"

!define CLASSES "Software\Classes"
!define PICTURE "Kelvo.Picture"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kelvo"
!define SHCNE_ASSOCCHANGED 0x8000000

Page license
LicenseData "${TREE}/LICENSE.txt"
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; All that an installation puts into its folder: nobody else's files go with it.
!macro RemoveProgram
  RMDir /r "$INSTDIR\share"
  RMDir /r "$INSTDIR\licences"
  RMDir /r "$INSTDIR\platforms"
  RMDir /r "$INSTDIR\styles"
  RMDir /r "$INSTDIR\imageformats"
  Delete "$INSTDIR\*.dll"
  Delete "$INSTDIR\kelvo.exe"
  Delete "$INSTDIR\kelvo-cli.exe"
  Delete "$INSTDIR\LICENSE.txt"
!macroend

Section
  ; What an older version left would be loaded beside the new one.
  !insertmacro RemoveProgram
  ClearErrors
  SetOutPath "$INSTDIR"
  File /r "${TREE}/*"
  IfErrors 0 written
    MessageBox MB_OK|MB_ICONSTOP "Kelvo cannot be written. Is it running? Close it, and install again." /SD IDOK
    SetErrorLevel 2
    Abort
  written:
  FileOpen $0 "$INSTDIR\share\kelvo\installed" w  ; so nothing is kept beside the program, but in the user's folder
  FileClose $0
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Kelvo.lnk" "$INSTDIR\kelvo.exe"
  WriteRegStr HKCU "Software\Kelvo\Setup" "Folder" "$INSTDIR"

  WriteRegStr HKCU "${CLASSES}\.kvp" "" "${PICTURE}"
  WriteRegStr HKCU "${CLASSES}\.kvp\OpenWithProgids" "${PICTURE}" ""
  WriteRegStr HKCU "${CLASSES}\${PICTURE}" "" "Kelvo C64 picture"
  WriteRegStr HKCU "${CLASSES}\${PICTURE}\DefaultIcon" "" "$INSTDIR\kelvo.exe,0"
  WriteRegStr HKCU "${CLASSES}\${PICTURE}\shell\open\command" "" '"$INSTDIR\kelvo.exe" "%1"'

  WriteRegStr HKCU "${ENTRY}" "DisplayName" "Kelvo"
  WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${ENTRY}" "DisplayIcon" "$INSTDIR\kelvo.exe"
  WriteRegStr HKCU "${ENTRY}" "Publisher" "The Kelvo developers"
  WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${ENTRY}" "NoModify" 1
  WriteRegDWORD HKCU "${ENTRY}" "NoRepair" 1
  SectionGetSize 0 $0
  WriteRegDWORD HKCU "${ENTRY}" "EstimatedSize" "$0"
  System::Call 'shell32::SHChangeNotify(i ${SHCNE_ASSOCCHANGED}, i 0, p 0, p 0)'
SectionEnd

; The user's pictures, backups and settings stay.
Section Uninstall
  !insertmacro RemoveProgram
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Kelvo.lnk"
  DeleteRegKey HKCU "Software\Kelvo\Setup"
  DeleteRegKey HKCU "${ENTRY}"
  DeleteRegKey HKCU "${CLASSES}\${PICTURE}"
  DeleteRegValue HKCU "${CLASSES}\.kvp\OpenWithProgids" "${PICTURE}"
  ReadRegStr $0 HKCU "${CLASSES}\.kvp" ""
  StrCmp $0 "${PICTURE}" 0 +2
  DeleteRegValue HKCU "${CLASSES}\.kvp" ""
  DeleteRegKey /ifempty HKCU "${CLASSES}\.kvp\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.kvp"
  System::Call 'shell32::SHChangeNotify(i ${SHCNE_ASSOCCHANGED}, i 0, p 0, p 0)'
SectionEnd
