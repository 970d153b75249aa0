// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
using UnrealBuildTool;

public class Tonalith : ModuleRules
{
	public Tonalith(ReadOnlyTargetRules Target) : base(Target)
	{
		CppStandard = CppStandardVersion.Cpp20;
		PCHUsage = PCHUsageMode.NoPCHs;
		bUseUnity = false;

		PublicDependencyModuleNames.AddRange(new string[] { "Core", "CoreUObject", "Engine" });
		PrivateDependencyModuleNames.AddRange(new string[] { "InputCore", "Slate", "SlateCore" });
		if (Target.bBuildEditor)
		{
			PrivateDependencyModuleNames.AddRange(new string[] { "EditorFramework", "PropertyEditor", "UnrealEd" });
		}
	}
}
