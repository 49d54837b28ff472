; The installer for Windows, for the one user who runs it. Leagues lie elsewhere, and what the installer has not brought
; stays where it is. It is made with these definitions:
;   VERSION    for instance 3.0.0
;   FOLDER     what is installed
;   DELETIONS  a file that deletes from $INSTDIR what FOLDER holds, and nothing else
;   ICON       its icon
;   OUTPUT     the installer
Target amd64-unicode
SetCompressor /SOLID lzma
!include MUI2.nsh
!include LogicLib.nsh

!define NAME "Iceline Scorebook"
!define PROGRAM "$INSTDIR\iceline-scorebook.exe"
!define SAVE_STATE "IcelineScorebook.SaveState"
!define CLASSES "Software\Classes"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"

Name "${NAME}"
OutFile "${OUTPUT}"
RequestExecutionLevel user
ManifestDPIAware true
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL}" InstallLocation
ShowInstDetails nevershow
ShowUninstDetails nevershow
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs ${NAME}"
VIAddVersionKey LegalCopyright "The Iceline Scorebook authors"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

!macro ForEachEnding Do
    !insertmacro ${Do} gs0
    !insertmacro ${Do} gs1
    !insertmacro ${Do} gs2
    !insertmacro ${Do} gs3
    !insertmacro ${Do} gs4
    !insertmacro ${Do} gs5
    !insertmacro ${Do} gs6
    !insertmacro ${Do} gs7
    !insertmacro ${Do} gs8
    !insertmacro ${Do} gs9
!macroend

; The program opens such files, unless another one, an emulator for instance, does already: then it is one to choose.
!macro Associate Ending
    WriteRegStr HKCU "${CLASSES}\.${Ending}\OpenWithProgids" "${SAVE_STATE}" ""
    ReadRegStr $0 HKCR ".${Ending}" ""
    ${If} $0 == ""
        WriteRegStr HKCU "${CLASSES}\.${Ending}" "" "${SAVE_STATE}"
    ${EndIf}
!macroend

!macro Dissociate Ending
    DeleteRegValue HKCU "${CLASSES}\.${Ending}\OpenWithProgids" "${SAVE_STATE}"
    DeleteRegKey /ifempty HKCU "${CLASSES}\.${Ending}\OpenWithProgids"
    ReadRegStr $0 HKCU "${CLASSES}\.${Ending}" ""
    ${If} $0 == "${SAVE_STATE}"
        DeleteRegValue HKCU "${CLASSES}\.${Ending}" ""
    ${EndIf}
    DeleteRegKey /ifempty HKCU "${CLASSES}\.${Ending}"
!macroend

!macro TellExplorer
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Section
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR' ; an older version
    ${EndIf}
    SetOutPath $INSTDIR
    File /r "${FOLDER}/*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "${PROGRAM}"

    WriteRegStr HKCU "${CLASSES}\${SAVE_STATE}" "" "Emulator save state"
    WriteRegStr HKCU "${CLASSES}\${SAVE_STATE}\DefaultIcon" "" "${PROGRAM},0"
    WriteRegStr HKCU "${CLASSES}\${SAVE_STATE}\shell\open\command" "" '"${PROGRAM}" "%1"'
    !insertmacro ForEachEnding Associate
    !insertmacro TellExplorer

    WriteRegStr HKCU "${UNINSTALL}" DisplayName "${NAME}"
    WriteRegStr HKCU "${UNINSTALL}" DisplayVersion "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" DisplayIcon "${PROGRAM}"
    WriteRegStr HKCU "${UNINSTALL}" Publisher "The Iceline Scorebook authors"
    WriteRegStr HKCU "${UNINSTALL}" InstallLocation "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" NoModify 1
    WriteRegDWORD HKCU "${UNINSTALL}" NoRepair 1
SectionEnd

Section Uninstall
    !include "${DELETIONS}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    !insertmacro ForEachEnding Dissociate
    DeleteRegKey HKCU "${CLASSES}\${SAVE_STATE}"
    DeleteRegKey HKCU "${UNINSTALL}"
    !insertmacro TellExplorer
SectionEnd
