; The installer for Windows: for the user who runs it, without an administrator's rights, in the system's language.
;     makensis -DVERSION=2.5 -DFILES=FOLDER -DICON=FILE -DPICTURE=FILE -DOUT=FILE installer.nsi
; Exit codes of installer and uninstaller: 0 done, 1 cancelled by the user, 2 not possible.
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
RequestExecutionLevel user
; Where a file cannot be written, there is nothing to be gained by going on without it.
AllowSkipFiles off

!include MUI2.nsh
!include LogicLib.nsh

!define NAME "Dervalin Ostrelum"
!define PROGRAM "dervalin-ostrelum.exe"
!define CONSOLE "ostrelum-console.exe"
!define REMOVER "uninstall.exe"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${NAME}"
; How often, and after how many milliseconds each time, a program that is asked to end is looked for.
!define LOOKS 50
!define PAUSE 200

Name "${NAME}"
OutFile "${OUT}"
BrandingText "${NAME} ${VERSION}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
; A newer version goes where the one before is.
InstallDirRegKey HKCU "${KEY}" InstallLocation

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURE}"
!define MUI_WELCOMEFINISHPAGE_BITMAP_STRETCH AspectFitHeight
!define MUI_FINISHPAGE_RUN "$INSTDIR\${PROGRAM}"
; Short enough for its place in each language.
!define MUI_UNCONFIRMPAGE_TEXT_LOCATION "$(Folder)"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
; The first one is for all other languages.
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE Spanish
!insertmacro MUI_LANGUAGE Dutch

LangString IsOpen ${LANG_ENGLISH} "${NAME} is open and will be closed."
LangString IsOpen ${LANG_SPANISH} "${NAME} está abierto y se cerrará."
LangString IsOpen ${LANG_DUTCH} "${NAME} is geopend en wordt afgesloten."
LangString InUse ${LANG_ENGLISH} "A file in $INSTDIR cannot be replaced. Close ${NAME} and its console, please."
LangString InUse ${LANG_SPANISH} "No se puede reemplazar un archivo en $INSTDIR. Por favor, cerrá ${NAME} y su consola."
LangString InUse ${LANG_DUTCH} "Een bestand in $INSTDIR kan niet worden vervangen. Sluit ${NAME} en de console ervan, a.u.b."
LangString Folder ${LANG_ENGLISH} "Folder:"
LangString Folder ${LANG_SPANISH} "Carpeta:"
LangString Folder ${LANG_DUTCH} "Map:"
LangString About ${LANG_ENGLISH} "What this computer is made of and what it runs"
LangString About ${LANG_SPANISH} "De qué está hecha esta computadora y qué ejecuta"
LangString About ${LANG_DUTCH} "Waaruit deze computer bestaat en wat erop draait"

VIProductVersion "${VERSION}.0.0"
VIFileVersion "${VERSION}.0.0"
VIAddVersionKey /LANG=0 ProductName "${NAME}"
VIAddVersionKey /LANG=0 ProductVersion "${VERSION}"
VIAddVersionKey /LANG=0 FileDescription "${NAME} ${VERSION}"
VIAddVersionKey /LANG=0 FileVersion "${VERSION}"
VIAddVersionKey /LANG=0 CompanyName "Alex Marenco"
VIAddVersionKey /LANG=0 LegalCopyright "Alex Marenco"

; All that is installed, but for the uninstaller itself.
!macro files do
    !insertmacro ${do} "${PROGRAM}"
    !insertmacro ${do} "${CONSOLE}"
    !insertmacro ${do} "README.txt"
    !insertmacro ${do} "LICENSE.txt"
    !insertmacro ${do} "NOTICES.txt"
!macroend
!macro put file
    File "${FILES}/${file}"
!macroend
!macro remove file
    Delete "$INSTDIR\${file}"
!macroend

; look_at FILE: $1 becomes 1 if a program keeps the file from being written.
!macro look_at file
    ${If} ${FileExists} "$INSTDIR\${file}"
        ClearErrors
        FileOpen $0 "$INSTDIR\${file}" a
        ${If} ${Errors}
            StrCpy $1 1
        ${Else}
            FileClose $0
        ${EndIf}
    ${EndIf}
!macroend

; The functions of both halves: an uninstaller calls only those whose names begin with "un.".
!macro functions un
    ; $1: whether one of the programs is running.
    Function ${un}look
        StrCpy $1 0
        !insertmacro look_at "${PROGRAM}"
        !insertmacro look_at "${CONSOLE}"
    FunctionEnd

    ; Asks each of the program's windows to close, the one in front first, and waits until it has ended.
    Function ${un}close_windows
        ${For} $2 1 ${LOOKS}
            FindWindow $3 "${NAME}"
            ${If} $3 <> 0
                SendMessage $3 ${WM_CLOSE} 0 0 /TIMEOUT=${PAUSE}
            ${EndIf}
            Sleep ${PAUSE}
            Call ${un}look
            ${If} $1 = 0
                ${Break}
            ${EndIf}
        ${Next}
    FunctionEnd

    ; Goes on once no file of the program's is in use; otherwise nothing has been changed.
    Function ${un}make_way
        Call ${un}look
        ${If} $1 <> 0
            ${If} ${Cmd} `MessageBox MB_OKCANCEL|MB_ICONINFORMATION "$(IsOpen)" /SD IDOK IDCANCEL`
                SetErrorLevel 1
                Quit
            ${EndIf}
            Call ${un}close_windows
        ${EndIf}
        ${While} $1 <> 0
            ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(InUse)" /SD IDCANCEL IDCANCEL`
                SetErrorLevel 2
                Quit
            ${EndIf}
            Call ${un}look
        ${EndWhile}
    FunctionEnd
!macroend
!insertmacro functions ""
!insertmacro functions "un."

Section
    Call make_way
    SetOutPath "$INSTDIR"
    !insertmacro files put
    WriteUninstaller "$INSTDIR\${REMOVER}"
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\${PROGRAM}" "" "" "" SW_SHOWNORMAL "" "$(About)"

    SectionGetSize 0 $0
    WriteRegStr HKCU "${KEY}" DisplayName "${NAME}"
    WriteRegStr HKCU "${KEY}" DisplayVersion "${VERSION}"
    WriteRegStr HKCU "${KEY}" DisplayIcon "$INSTDIR\${PROGRAM}"
    WriteRegStr HKCU "${KEY}" Publisher "Alex Marenco"
    WriteRegStr HKCU "${KEY}" URLInfoAbout "https://dervalin.example.org/ostrelum"
    WriteRegStr HKCU "${KEY}" InstallLocation "$INSTDIR"
    WriteRegStr HKCU "${KEY}" UninstallString '"$INSTDIR\${REMOVER}"'
    WriteRegStr HKCU "${KEY}" QuietUninstallString '"$INSTDIR\${REMOVER}" /S'
    WriteRegDWORD HKCU "${KEY}" EstimatedSize $0
    WriteRegDWORD HKCU "${KEY}" NoModify 1
    WriteRegDWORD HKCU "${KEY}" NoRepair 1
SectionEnd

; The settings stay. So does what somebody else has put into the folder.
Section Uninstall
    Call un.make_way
    !insertmacro files remove
    Delete "$INSTDIR\${REMOVER}"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    DeleteRegKey HKCU "${KEY}"
SectionEnd
