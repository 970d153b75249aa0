// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
using System.IO;
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
			"AssetTools",
			"Core",
			"CoreUObject",
			"EditorFramework",
			"Engine",
			"InputCore",
			"LevelEditor",
			"Projects",
			"PropertyEditor",
			"Slate",
			"SlateCore",
			"ToolMenus",
			"Tonalith",
			"UnrealEd",
		});

		AddLibraries();
	}

	/// KilnSources.cpp and BoostSources.cpp compile parts of these libraries into the module; tools/package puts them
	/// below Source/ThirdParty. In the repository Kiln lies beside the plug-in.
	private void AddLibraries()
	{
		string ThirdParty = Path.GetFullPath(Path.Combine(PluginDirectory, "Source", "ThirdParty"));
		string Kiln = Path.Combine(ThirdParty, "Kiln");
		if (!Directory.Exists(Kiln))
		{
			Kiln = Path.GetFullPath(Path.Combine(PluginDirectory, "..", "..", "common"));
		}
		foreach (string Area in new string[] { "filesystem", "json", "locale" })
		{
			PrivateIncludePaths.Add(Path.Combine(Kiln, Area, "include"));
		}
		PublicSystemIncludePaths.Add(Path.Combine(ThirdParty, "Boost"));
		PublicSystemIncludePaths.Add(Path.Combine(ThirdParty, "RapidJSON"));
		PublicSystemLibraries.AddRange(new string[] { "bcrypt.lib", "shell32.lib" });
		PrivateDefinitions.AddRange(new string[] { "BOOST_ALL_NO_LIB", "BOOST_FILESYSTEM_STATIC_LINK=1" });
	}
}
