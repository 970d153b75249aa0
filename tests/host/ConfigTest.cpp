// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Settings of a plug-in in a file: the text is the engine's, typed by hand.
#include "EditorTest.h"
#include "Host/Assets.h"
#include "ProbeSettings.h"
#include "UObject/UObjectGlobals.h"

#include <filesystem>
#include <fstream>

class Config : public FEditorTest
{
protected:
	std::filesystem::path File() const
	{
		return std::filesystem::path(*Options.ProjectFolder) / "Saved/Config/WindowsEditor/ProbeSettings.ini";
	}

	UProbeSettings& StartWith(const std::string& Text)
	{
		std::filesystem::create_directories(File().parent_path());
		std::ofstream(File(), std::ios::binary) << Text;
		HostAssets::Write(Options.ProjectFolder, TEXT("/Script/Probe.ProbeSettings"), TEXT("/Game/Things/A.A"));
		Driver.Start(Options);
		return *GetMutableDefault<UProbeSettings>();
	}

	std::string Saved(UProbeSettings& Settings) const
	{
		Settings.SaveConfig();
		std::ifstream Stream(File(), std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(Stream), {});
	}
};

TEST_F(Config, EveryKindIsWrittenAsTheEngineWritesIt)
{
	UProbeSettings& Settings = StartWith("");
	Settings.Share = 1e-7f;
	Settings.Entries.Emplace_GetRef();
	Settings.Entries.Emplace_GetRef();
	Settings.Entries[0].Name = "it's \"A\\B\"_2";
	Settings.Entries[1].Object = StaticLoadObject(UObject::StaticClass(), TEXT("/Game/Things/A.A"));
	Settings.Entries[1].Inner.bFlag = false;
	Settings.Forgotten = 5.0f;
	const std::string Expected =
		"[/Script/Probe.ProbeSettings]\r\n"
		"Share=0.000000\r\n"
		R"(Entries=(Name="it\'s \"A\\B\"_2",Object=None,Inner=(Share=0.500000,bFlag=True)))"
		"\r\n"
		R"(Entries=(Name="",Object="/Script/Probe.ProbeSettings'/Game/Things/A.A'",Inner=(Share=0.500000,bFlag=False)))"
		"\r\n\r\n";
	EXPECT_EQ(Saved(Settings), Expected);
	EXPECT_EQ(Saved(Settings), Expected);

	// An empty array leaves no key.
	Settings.Entries.Empty();
	EXPECT_EQ(Saved(Settings), "[/Script/Probe.ProbeSettings]\r\nShare=0.000000\r\n\r\n");
}

TEST_F(Config, WhatTheFileHoldsIsThereWhenTheModuleStarts)
{
	UProbeSettings& Settings =
		StartWith("\xEF\xBB\xBF; a comment\n[/script/probe.probesettings]\n  share = \"0.75\" \r\n"
				  "Entries=(Unknown=(A=\")\",B=(C=1)), Name=\"X\\\"\\\\_1\",Inner=(Share=2))\r\n"
				  "Entries=nonsense\r\n"
				  "Entries=(Object=/Game/Things/A.A,Inner=(bFlag=nonsense,Share=\r\n"
				  "Entries=(Object=\"/Script/Probe.ProbeSettings'/Game/Things/A.A'\",Inner=(bFlag=False))\r\n"
				  "Entries=(Object=\"/Script/Probe.Gone'/Game/Things/Gone.Gone'\",Name=None)\r\n"
				  "+Entries=(Name=Ignored)\r\nForgotten=9\r\n");
	EXPECT_THAT(TakeLog("LogProbe"), testing::Contains(testing::HasSubstr("setting entries 5")));
	EXPECT_EQ(Settings.Share, 0.75f);
	EXPECT_EQ(Settings.Forgotten, 1.0f);
	ASSERT_EQ(Settings.Entries.Num(), 5);
	EXPECT_EQ(Settings.Entries[0].Name, FName("X\"\\_1"));
	EXPECT_EQ(Settings.Entries[0].Inner.Share, 2.0f);
	EXPECT_TRUE(Settings.Entries[1].Name.IsNone());
	EXPECT_EQ(Settings.Entries[1].Inner.Share, 0.5f);
	EXPECT_NE(Settings.Entries[2].Object.Get(), nullptr);
	EXPECT_TRUE(Settings.Entries[2].Inner.bFlag);
	EXPECT_EQ(Settings.Entries[3].Object.Get(), Settings.Entries[2].Object.Get());
	EXPECT_FALSE(Settings.Entries[3].Inner.bFlag);
	EXPECT_EQ(Settings.Entries[4].Object.Get(), nullptr);
	EXPECT_TRUE(Settings.Entries[4].Name.IsNone());
}
