// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
using UnrealBuildTool;

public class TonalithLookFiles : ModuleRules
{
	public TonalithLookFiles(ReadOnlyTargetRules Target) : base(Target)
	{
		CppStandard = CppStandardVersion.Cpp20;
		PCHUsage = PCHUsageMode.NoPCHs;
		bUseUnity = false;

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"Core",
			"CoreUObject",
			"EditorFramework",
			"EditorSubsystem",
			"Engine",
			"Tonalith",
			"UnrealEd",
		});
	}
}
