@echo off
rem file-type.cmd register     makes .quenmora files Quenmora projects for this user: their name, their icon, an
rem                            entry that starts the editor and one that writes the files for the game
rem file-type.cmd unregister   takes that away again
rem Nothing else is changed, and no administrator is needed. Register again after moving the folder.
setlocal
chcp 65001 >nul
set "classes=HKCU\Software\Classes"
set "type=Quenmora.Project"
if /i "%~1"=="register" goto register
if /i "%~1"=="unregister" goto unregister
echo Usage: file-type.cmd register ^| unregister
exit /b 2

:register
reg add "%classes%\.quenmora" /ve /d "%type%" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\%type%" /ve /d "Quenmora project" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\%type%\DefaultIcon" /ve /d "\"%~dp0quenmora.exe\",0" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\%type%\shell\open" /ve /d "Start Quenmora" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\%type%\shell\open\command" /ve /d "\"%~dp0quenmora.exe\"" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\%type%\shell\export" /ve /d "Export for the game" /f >nul
if errorlevel 1 goto failed
reg add "%classes%\%type%\shell\export\command" /ve /d "\"%~dp0quenmora-export.exe\" \"%%1\"" /f >nul
if errorlevel 1 goto failed
echo .quenmora files are Quenmora projects now.
exit /b 0

:unregister
reg delete "%classes%\%type%" /f >nul 2>&1
rem only when it is still ours
reg query "%classes%\.quenmora" /ve 2>nul | find "%type%" >nul
if not errorlevel 1 reg delete "%classes%\.quenmora" /f >nul 2>&1
echo .quenmora files are unknown again.
exit /b 0

:failed
echo The registry could not be changed.
exit /b 1
