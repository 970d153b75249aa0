@echo off
rem Copyright 2026 Vantor. SPDX-License-Identifier: MIT
rem Copies the string files to where the editor looks for them, for all users of this machine. A double click is enough;
rem Windows asks for an administrator's consent where the folder needs it.
setlocal
set "target=%ProgramData%\Vantor\com.vantor.look\translations\unreal"
if not exist "%target%" mkdir "%target%" 2>nul
copy /y "%~dp0table_*.json" "%target%\" >nul && (
	echo Installed to %target%
	if not "%~1"=="/q" pause
	exit /b 0
)
if "%~1"=="/elevated" (
	echo The string files could not be copied to %target%
	pause
	exit /b 1
)
if "%~1"=="/q" exit /b 1
powershell -NoProfile -Command "Start-Process -Verb RunAs -FilePath '%~f0' -ArgumentList '/elevated'"
