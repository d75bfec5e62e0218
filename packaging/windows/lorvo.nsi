; The installer for Windows, for the one user who runs it, into a folder where he may write: the
; program keeps its data beside itself. Quiet with /S, into another folder with /D=C:\Folder.
; What the clerk works on is never touched: not the database, not a changed template, not what was
; printed. The uninstaller leaves it too and says where it is.
; Settings are the machine's, and only an administrator may let the clerks write them: started with
; /PRAVA the installer does that alone and ends with 0, or with 1 when it may not.
;   tools/windows/installer.sh makes it.
Unicode true
Target amd64-unicode
!include "MUI2.nsh"
!include "LogicLib.nsh"
!include "FileFunc.nsh"

!define SETTINGS "Software\Hollow Peak\Lorvo"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Lorvo"

Name "Lorvo ${VERSION}"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Lorvo"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
RequestExecutionLevel user
SetCompressor /SOLID lzma
ManifestDPIAware true
BrandingText "Lorvo ${VERSION}"

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey /LANG=1029 "ProductName" "Lorvo"
VIAddVersionKey /LANG=1029 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1029 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1029 "FileDescription" "Instalace programu Lorvo"
VIAddVersionKey /LANG=1029 "CompanyName" "Hollow Peak"
VIAddVersionKey /LANG=1029 "LegalCopyright" "© 2026 Hollow Peak"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_WELCOMEPAGE_TEXT "Nainstaluje se Lorvo, kancelář výstavy psů. Práva správce nejsou třeba.$\r$\n$\r$\nJe-li už Lorvo ve zvolené složce, nahradí se jen program a nápověda. Vaše data, nastavení a šablony, které jste upravili, zůstanou, jak jsou.$\r$\n$\r$\nPřed pokračováním Lorvo zavřete."
!define MUI_DIRECTORYPAGE_TEXT_TOP "Do této složky Lorvo ukládá i data výstavy (soubor data.mdb). Nevolte síťovou složku ani složku, kterou synchronizuje cloudová služba."
!define MUI_FINISHPAGE_RUN "$INSTDIR\Lorvo.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Spustit Lorvo"
!define MUI_FINISHPAGE_SHOWREADME
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Pamatovat si nastavení a místa oken (požádá o práva správce)"
!define MUI_FINISHPAGE_SHOWREADME_FUNCTION AskForSettings
!define MUI_PAGE_CUSTOMFUNCTION_SHOW HideWhatIsGranted

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${STAGE}/Licence/Lorvo.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Czech"

; $R0 becomes 1 when the clerks of this machine may keep settings from now on. What stands below the
; key already is given to them too.
Function GrantSettings
  StrCpy $R0 0
  WriteRegStr HKLM "${SETTINGS}" "" ""
  System::Call 'advapi32::ConvertStringSecurityDescriptorToSecurityDescriptorW(w "D:(A;CI;KRKWSD;;;BU)", i 1, *p .r1, p 0) i .r0'
  ${If} $0 != 0
    System::Call 'advapi32::GetSecurityDescriptorDacl(p r1, *i .r2, *p .r3, *i .r4)'
    ; 4 is a key of the registry, and the list of who may what.
    System::Call 'advapi32::SetNamedSecurityInfoW(w "MACHINE\${SETTINGS}", i 4, i 4, p 0, p 0, p r3, p 0) i .r0'
    ${If} $0 = 0
      StrCpy $R0 1
    ${EndIf}
    System::Call 'kernel32::LocalFree(p r1)'
  ${EndIf}
FunctionEnd

Function .onInit
  ${GetParameters} $R1
  ClearErrors
  ${GetOptions} $R1 "/PRAVA" $R2
  ${IfNot} ${Errors}
    Call GrantSettings
    IntOp $R0 1 - $R0
    SetErrorLevel $R0
    Quit
  ${EndIf}
FunctionEnd

; On the last page: the box is there for who installed without the rights and hasn't them yet.
Function HideWhatIsGranted
  ClearErrors
  WriteRegStr HKLM "${SETTINGS}" "" ""
  ${IfNot} ${Errors}
    SendMessage $mui.FinishPage.ShowReadme ${BM_SETCHECK} ${BST_UNCHECKED} 0
    ShowWindow $mui.FinishPage.ShowReadme ${SW_HIDE}
  ${EndIf}
FunctionEnd

Function AskForSettings
  ExecShell "runas" "$EXEPATH" "/PRAVA"
FunctionEnd

; A program that runs holds its file: nothing may be replaced under it.
!macro RefuseWhileRunning PROGRAM TEXT
  ${If} ${FileExists} "$INSTDIR\${PROGRAM}"
    ClearErrors
    FileOpen $0 "$INSTDIR\${PROGRAM}" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "${TEXT} Zavřete jej a zkuste to znovu." /SD IDOK
      SetErrorLevel 3
      Abort
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

; $R0 and $R1 name two files; $R2 becomes 1 when they hold the same bytes, else 0.
Function SameFile
  StrCpy $R2 0
  ClearErrors
  FileOpen $0 $R0 r
  FileOpen $1 $R1 r
  ${IfNot} ${Errors}
    ${Do}
      FileReadByte $0 $2
      FileReadByte $1 $3
      ${If} $2 != $3
        ${Break}
      ${EndIf}
      ${If} $2 == "" ; both are at their end
        StrCpy $R2 1
        ${Break}
      ${EndIf}
    ${Loop}
  ${EndIf}
  FileClose $0
  FileClose $1
FunctionEnd

; A template that differs from the one delivered before is the clerk's work and stays; the new one
; lies in the folder Dodané beside it.
!macro Template NAME
  ${If} ${FileExists} "$INSTDIR\Šablony\${NAME}"
    StrCpy $R0 "$INSTDIR\Šablony\${NAME}"
    StrCpy $R1 "$INSTDIR\Šablony\Dodané\${NAME}"
    Call SameFile
  ${Else}
    StrCpy $R2 1
  ${EndIf}
  SetOutPath "$INSTDIR\Šablony\Dodané"
  File "${STAGE}/Šablony/${NAME}"
  ${If} $R2 == 1
    CopyFiles /SILENT "$INSTDIR\Šablony\Dodané\${NAME}" "$INSTDIR\Šablony\${NAME}"
  ${EndIf}
!macroend

Section "Lorvo"
  !insertmacro RefuseWhileRunning "Lorvo.exe" "Program Lorvo je spuštěný."
  !insertmacro RefuseWhileRunning "LorvoSpravce.exe" "Správce dat je spuštěný."
  SetOutPath "$INSTDIR"
  File /r /x data.mdb /x Šablony "${STAGE}/*"
  ${IfNot} ${FileExists} "$INSTDIR\data.mdb"
    File "${STAGE}/data.mdb"
  ${EndIf}
  !insertmacro Template "Diplomy.html"
  !insertmacro Template "Platby.html"
  !insertmacro Template "Posudkové listy.html"
  !insertmacro Template "Pozvánky.html"
  !insertmacro Template "Seznam psů.html"
  !insertmacro Template "Seznam vystavovatelů.html"

  Call GrantSettings
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\Odinstalovat.exe"
  CreateShortCut "$SMPROGRAMS\Lorvo.lnk" "$INSTDIR\Lorvo.exe"
  CreateShortCut "$SMPROGRAMS\Lorvo – správce dat.lnk" "$INSTDIR\LorvoSpravce.exe"
  CreateShortCut "$DESKTOP\Lorvo.lnk" "$INSTDIR\Lorvo.exe"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Lorvo – kancelář výstavy psů"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\Lorvo.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "Hollow Peak"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\Odinstalovat.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Odinstalovat.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

; Only what was installed, by name; the folder itself goes when nothing of the clerk's is in it.
Section "Uninstall"
  !insertmacro RefuseWhileRunning "Lorvo.exe" "Program Lorvo je spuštěný."
  !insertmacro RefuseWhileRunning "LorvoSpravce.exe" "Správce dat je spuštěný."
  !include "${REMOVED}" ; a line for each file and folder that was installed
  RMDir /r "$INSTDIR\Šablony\Dodané"
  Delete "$INSTDIR\Odinstalovat.exe"
  Delete "$SMPROGRAMS\Lorvo.lnk"
  Delete "$SMPROGRAMS\Lorvo – správce dat.lnk"
  Delete "$DESKTOP\Lorvo.lnk"
  DeleteRegKey HKCU "${UNINSTALL}"
  RMDir "$INSTDIR"
  ${If} ${FileExists} "$INSTDIR\data.mdb"
    MessageBox MB_OK|MB_ICONINFORMATION "Program Lorvo byl odinstalován.$\r$\n$\r$\nVaše data zůstala ve složce$\r$\n$INSTDIR$\r$\n$\r$\nUž-li je nepotřebujete, složku smažte." /SD IDOK
  ${EndIf}
SectionEnd
