; The installer, for one user and without administrator rights. scripts/make_setup compiles it and defines:
;   VERSION   the project's version, as 1.2.3
;   SIZE      what the installed files take, in KB
;   FILES     a generated file with the macros InstallFiles and RemoveFiles, one line for each file of the package
;   OUTPUT    the installer to write
; /S installs and uninstalls without a window, /D=C:\Folder (last, without quotes) chooses the folder.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestSupportedOS Win10
ManifestDPIAware true

!include "MUI2.nsh"
!include "LogicLib.nsh"
!include "Sections.nsh"
!include "FileFunc.nsh"
!include "Integration.nsh"
!include "${FILES}"

!define NAME "Larkspur Filer"
!define DOCUMENT "LarkspurFiler.Document"  ; what the registry calls the data files
!define REPORT "LarkspurFiler.Report"      ; and the reports
; All keys are of the user who installs.
!define CLASSES "Software\Classes"
!define CURRENT "Software\Microsoft\Windows\CurrentVersion"
!define APP_PATH "${CURRENT}\App Paths\LarkspurFiler.exe"
!define UNINSTALL "${CURRENT}\Uninstall\LarkspurFiler"
!define OWN_KEY "Software\${NAME}"
!define MENU "$SMPROGRAMS\${NAME}"
; The program keeps its settings file in its current folder unless it is told another one; without this it would
; leave one beside every document that is opened from Explorer.
!define SETTINGS "$APPDATA\${NAME}"
!define SETTINGS_OPTION '/INIDIR="${SETTINGS}"'
!define OPEN_COMMAND '"$INSTDIR\LarkspurFiler.exe" "%1" ${SETTINGS_OPTION}'

Name "${NAME}"
OutFile "${OUTPUT}"
BrandingText "${NAME} ${VERSION}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "Copyright (C) 2026 the Larkspur Filer authors"

; ---- Pages

!define MUI_ICON "larkspur.ico"
!define MUI_UNICON "larkspur.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "wizard.bmp"
!define MUI_ABORTWARNING

!define MUI_WELCOMEPAGE_TITLE "Welcome to ${NAME} ${VERSION}"
!define MUI_WELCOMEPAGE_TEXT "${NAME} keeps a list of things - the contents of a house, a collection, a family - in \
  one plain text file.$\r$\n$\r$\nIt will be installed for you alone; no administrator rights are needed.$\r$\n$\r$\n\
  An older version is replaced. Your own files and settings stay as they are.$\r$\n$\r$\n$_CLICK"
!insertmacro MUI_PAGE_WELCOME
!define MUI_PAGE_HEADER_TEXT "Choose What to Install"
!define MUI_PAGE_HEADER_SUBTEXT "Choose whether ${NAME} opens its data files."
!define MUI_COMPONENTSPAGE_TEXT_TOP "With the second choice a double click on a data file (.FIL) opens it in ${NAME}, and one on a report (.PRN) in its viewer. \
  You may change that later in the settings of Windows."
!define MUI_COMPONENTSPAGE_TEXT_COMPLIST "To be installed:"
!define MUI_COMPONENTSPAGE_SMALLDESC
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_TITLE "${NAME} is installed"
!define MUI_FINISHPAGE_TEXT "You find it in the Start menu, together with its manual and a sample to look around in."
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Open the sample"
!define MUI_FINISHPAGE_RUN_FUNCTION OpenSample
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\Larkspur_Manual.htm"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Read the manual"
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED
!insertmacro MUI_PAGE_FINISH

!define MUI_UNCONFIRMPAGE_TEXT_TOP "${NAME} will be removed. Your documents, the samples you changed, and your settings \
  stay where they are."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; ---- Files

; A sample that is there already was changed by its user, since the older version has removed its own.
!macro InstallSample FOLDER SOURCE NAME
  ${IfNot} ${FileExists} "$INSTDIR\${FOLDER}\${NAME}"
    SetOutPath "$INSTDIR\${FOLDER}"
    File "${SOURCE}"
  ${EndIf}
!macroend

; Removes a sample unless it was changed: every file is installed with the time it has in the package.
!macro RemoveSample FOLDER SOURCE NAME
  GetFileTimeLocal "${SOURCE}" $R2 $R3
  ClearErrors
  GetFileTime "$INSTDIR\${FOLDER}\${NAME}" $R4 $R5
  ${IfNot} ${Errors}
  ${AndIf} "$R2 $R3" == "$R4 $R5"
    Delete "$INSTDIR\${FOLDER}\${NAME}"
  ${EndIf}
!macroend

; Gives a file type back to whom it belonged, unless it has gone to another program since.
!macro GiveBack TYPE CLASS FORMER
  ReadRegStr $R1 HKCU "${CLASSES}\${TYPE}" ""
  ${If} $R1 == "${CLASS}"
    ReadRegStr $R1 HKCU "${OWN_KEY}" "${FORMER}"
    ${If} $R1 == ""
      DeleteRegValue HKCU "${CLASSES}\${TYPE}" ""
    ${Else}
      WriteRegStr HKCU "${CLASSES}\${TYPE}" "" $R1
    ${EndIf}
  ${EndIf}
  DeleteRegValue HKCU "${OWN_KEY}" "${FORMER}"
!macroend

; These are needed on both sides; what runs in the uninstaller must be called un.Something.
!macro SharedFunctions UN

; Asks the user to close what runs from the folder $R0, and ends when they will not: Windows lets nobody write to a
; program that is running.
Function ${UN}CloseRunning
  StrCpy $R1 "LarkspurFiler.exe"
  ${Do}
    ${If} ${FileExists} "$R0\$R1"
      ${Do}
        ClearErrors
        FileOpen $R2 "$R0\$R1" a
        ${IfNot} ${Errors}
          FileClose $R2
          ${ExitDo}
        ${EndIf}
        ${If} ${Cmd} 'MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$R1 is still running.$\n$\n\
            Please save your work, close it and choose Retry." /SD IDCANCEL IDCANCEL'
          SetErrorLevel 2
          Abort "$R1 is still running."
        ${EndIf}
      ${Loop}
    ${EndIf}
    ${If} $R1 == "LARKVIEW.EXE"
      ${ExitDo}
    ${EndIf}
    StrCpy $R1 "LARKVIEW.EXE"
  ${Loop}
FunctionEnd

; Gives the file types back.
Function ${UN}GiveBackExtensions
  !insertmacro GiveBack ".FIL" "${DOCUMENT}" "FormerOwner"
  !insertmacro GiveBack ".PRN" "${REPORT}" "FormerReportOwner"
FunctionEnd

!macroend
!insertmacro SharedFunctions ""
!insertmacro SharedFunctions "un."

; ---- Installing

Section "${NAME}" program
  SectionIn RO
  ; An older version first takes away what it brought: files that have gone since would otherwise stay for ever.
  ReadRegStr $R0 HKCU "${UNINSTALL}" "InstallLocation"
  ${If} $R0 != ""
  ${AndIf} ${FileExists} "$R0\Uninstall.exe"
    Call CloseRunning
    ExecWait '"$R0\Uninstall.exe" /S /UPGRADE _?=$R0'
    Delete "$R0\Uninstall.exe"
    RMDir "$R0"
  ${EndIf}
  StrCpy $R0 $INSTDIR
  Call CloseRunning

  !insertmacro InstallFiles
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  CreateDirectory "${SETTINGS}"

  ; A shortcut's program starts in the folder that is current here: where the user's documents are, and for the
  ; sample its own folder, in which the photos are found.
  CreateDirectory "${MENU}"
  SetOutPath "$DOCUMENTS"
  CreateShortcut "${MENU}\${NAME}.lnk" "$INSTDIR\LarkspurFiler.exe" '${SETTINGS_OPTION}'
  SetOutPath "$INSTDIR\samples"
  CreateShortcut "${MENU}\Sample Household.lnk" "$INSTDIR\LarkspurFiler.exe" \
    '"$INSTDIR\samples\Household.FIL" ${SETTINGS_OPTION}' "$INSTDIR\LarkspurFiler.exe" 1
  SetOutPath "$INSTDIR"
  CreateShortcut "${MENU}\${NAME} Manual.lnk" "$INSTDIR\Larkspur_Manual.htm"
  CreateShortcut "${MENU}\Uninstall ${NAME}.lnk" "$INSTDIR\Uninstall.exe"

  ; The data files, and the program among those that Explorer offers under "Open with".
  WriteRegStr HKCU "${CLASSES}\${DOCUMENT}" "" "${NAME} document"
  WriteRegStr HKCU "${CLASSES}\${DOCUMENT}\DefaultIcon" "" '"$INSTDIR\LarkspurFiler.exe",1'
  WriteRegStr HKCU "${CLASSES}\${DOCUMENT}\shell\open\command" "" '${OPEN_COMMAND}'
  WriteRegNone HKCU "${CLASSES}\.FIL\OpenWithProgids" "${DOCUMENT}"
  ; The reports, which the viewer shows.
  WriteRegStr HKCU "${CLASSES}\${REPORT}" "" "${NAME} report"
  WriteRegStr HKCU "${CLASSES}\${REPORT}\DefaultIcon" "" '"$INSTDIR\LARKVIEW.EXE",0'
  WriteRegStr HKCU "${CLASSES}\${REPORT}\shell\open\command" "" '"$INSTDIR\LARKVIEW.EXE" "%1"'
  WriteRegNone HKCU "${CLASSES}\.PRN\OpenWithProgids" "${REPORT}"
  WriteRegStr HKCU "${CLASSES}\Applications\LarkspurFiler.exe" "FriendlyAppName" "${NAME}"
  WriteRegStr HKCU "${CLASSES}\Applications\LarkspurFiler.exe\shell\open\command" "" '${OPEN_COMMAND}'
  WriteRegStr HKCU "${CLASSES}\Applications\LarkspurFiler.exe\SupportedTypes" ".FIL" ""
  ; The program among those that may be chosen in the system's settings.
  WriteRegStr HKCU "${OWN_KEY}\Capabilities" "ApplicationName" "${NAME}"
  WriteRegStr HKCU "${OWN_KEY}\Capabilities" "ApplicationDescription" "Keeps a list of things in a plain text file"
  WriteRegStr HKCU "${OWN_KEY}\Capabilities\FileAssociations" ".FIL" "${DOCUMENT}"
  WriteRegStr HKCU "${OWN_KEY}\Capabilities\FileAssociations" ".PRN" "${REPORT}"
  WriteRegStr HKCU "Software\RegisteredApplications" "${NAME}" "${OWN_KEY}\Capabilities"

  WriteRegStr HKCU "${APP_PATH}" "" "$INSTDIR\LarkspurFiler.exe"

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\LarkspurFiler.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "${NAME}"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

!macro Take TYPE CLASS FORMER
  ReadRegStr $R0 HKCU "${CLASSES}\${TYPE}" ""
  ${If} $R0 != "${CLASS}"
    WriteRegStr HKCU "${OWN_KEY}" "${FORMER}" $R0
    WriteRegStr HKCU "${CLASSES}\${TYPE}" "" "${CLASS}"
  ${EndIf}
!macroend
Section "Open .FIL and .PRN files by double click" opens_files
  !insertmacro Take ".FIL" "${DOCUMENT}" "FormerOwner"
  !insertmacro Take ".PRN" "${REPORT}" "FormerReportOwner"
SectionEnd

Section "-Associations"
  ${IfNot} ${SectionIsSelected} ${opens_files}
    Call GiveBackExtensions
  ${EndIf}
  ${NotifyShell_AssocChanged}
SectionEnd

LangString program_help ${LANG_ENGLISH} "The program, the viewer of its reports, the manual and a sample."
LangString opens_files_help ${LANG_ENGLISH} "A double click on a data file (.FIL) or a report (.PRN) opens it. Without this the programs are only \
  offered under $\"Open with$\"."
!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${program} $(program_help)
  !insertmacro MUI_DESCRIPTION_TEXT ${opens_files} $(opens_files_help)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Takes .FIL by default only when it is nobody's, or belongs to a program that is no longer there. Over an older
; version it stays as the user has it.
Function .onInit
  ReadRegStr $R0 HKCU "${CLASSES}\.FIL" ""
  ${If} $R0 == "${DOCUMENT}"
    Return
  ${EndIf}
  ReadRegStr $R1 HKCU "${UNINSTALL}" "InstallLocation"
  ${If} $R0 == ""
    ReadRegStr $R0 HKLM "${CLASSES}\.FIL" ""
  ${EndIf}
  ${If} $R0 != ""
    EnumRegKey $R2 HKCU "${CLASSES}\$R0" 0
    EnumRegKey $R3 HKLM "${CLASSES}\$R0" 0
  ${EndIf}
  ${If} "$R1$R2$R3" != ""
    !insertmacro UnselectSection ${opens_files}
  ${EndIf}
FunctionEnd

Function OpenSample
  SetOutPath "$INSTDIR\samples"
  Exec '"$INSTDIR\LarkspurFiler.exe" "$INSTDIR\samples\Household.FIL" ${SETTINGS_OPTION}'
FunctionEnd

; ---- Uninstalling

; Removes what was installed, file by file, and folders only when they are empty then.
Section "Uninstall"
  StrCpy $R0 $INSTDIR
  Call un.CloseRunning
  SetOutPath "$TEMP"  ; a folder that is current cannot be removed
  !insertmacro RemoveFiles
  Delete "${MENU}\${NAME}.lnk"
  Delete "${MENU}\Sample Household.lnk"
  Delete "${MENU}\${NAME} Manual.lnk"
  Delete "${MENU}\Uninstall ${NAME}.lnk"
  RMDir "${MENU}"
  ; A newer version that takes this one's place needs the rest, and sets it anew.
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/UPGRADE" $R1
  ${IfNot} ${Errors}
    Return
  ${EndIf}

  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  RMDir "${SETTINGS}"
  Call un.GiveBackExtensions
  DeleteRegValue HKCU "${CLASSES}\.FIL\OpenWithProgids" "${DOCUMENT}"
  DeleteRegValue HKCU "${CLASSES}\.PRN\OpenWithProgids" "${REPORT}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.FIL\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.FIL"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.PRN\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.PRN"
  DeleteRegKey HKCU "${CLASSES}\${DOCUMENT}"
  DeleteRegKey HKCU "${CLASSES}\${REPORT}"
  DeleteRegKey HKCU "${CLASSES}\Applications\LarkspurFiler.exe"
  DeleteRegValue HKCU "Software\RegisteredApplications" "${NAME}"
  DeleteRegKey HKCU "${OWN_KEY}"
  DeleteRegKey HKCU "${APP_PATH}"
  DeleteRegKey HKCU "${UNINSTALL}"
  ${NotifyShell_AssocChanged}
SectionEnd
