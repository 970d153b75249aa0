// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
using UnrealBuildTool;

public class TonalithEditor : ModuleRules
{
	public TonalithEditor(ReadOnlyTargetRules Target) : base(Target)
	{
		CppStandard = CppStandardVersion.Cpp20;
		PCHUsage = PCHUsageMode.NoPCHs;
		bUseUnity = false;
		bEnableExceptions = true;
		bUseRTTI = true;

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"CoreUObject",
			"EditorFramework",
			"Engine",
			"InputCore",
			"Slate",
			"SlateCore",
			"ToolMenus",
			"Tonalith",
			"UnrealEd",
		});
	}
}
