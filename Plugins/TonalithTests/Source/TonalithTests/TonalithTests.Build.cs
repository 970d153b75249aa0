// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
using UnrealBuildTool;

/// Needs nothing of Tonalith's own: what it tests is reached through the engine.
public class TonalithTests : ModuleRules
{
	public TonalithTests(ReadOnlyTargetRules Target) : base(Target)
	{
		CppStandard = CppStandardVersion.Cpp20;
		PCHUsage = PCHUsageMode.NoPCHs;
		bUseUnity = false;

		PrivateDependencyModuleNames.AddRange(new string[]
		{
			"AssetTools",
			"Core",
			"CoreUObject",
			"EditorFramework",
			"Engine",
			"InputCore",
			"LevelEditor",
			"Slate",
			"SlateCore",
			"ToolMenus",
			"UnrealEd",
		});
	}
}
