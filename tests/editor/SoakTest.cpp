// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Nothing grows, however long a session lasts and however often a project is opened. TONALITH_SOAK asks for the long way.
#include "LookTest.h"
#include "Program.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <psapi.h>

namespace
{
const bool bIsLong = std::getenv("TONALITH_SOAK") != nullptr;
} // namespace

class Soak : public FLookTest
{
protected:
	/** What a user does between two coffees; all is as before then. */
	void PlayRound()
	{
		Driver.SetLayout(TEXT("FourPanes2x2"));
		Driver.SetLayout(TEXT("TwoPanesHoriz"));
		Driver.ActivatePane(PaneA);
		for (const TCHAR* Look : {TEXT("Warm"), TEXT("Cold")})
		{
			OpenLookMenu();
			Driver.Menus().OpenSubMenu(TEXT("TNLAssetSelection"));
			Driver.Menus().Click(Look);
			OpenLookMenu();
			Driver.Menus().Click(TEXT("EnableDisplay"));
			Driver.TakePicture();
		}
		Driver.OpenAssets({WarmPath});
		Driver.Windows().MoveSlider(TEXT("Warm"), 0.5f);
		Driver.Windows().Picture(TEXT("Warm"));
		Driver.Windows().Close(TEXT("Warm"));
		Driver.PlayInPane();
		Driver.EndPlay();
		CollectGarbage();
	}

	/** Bindings that came in the last round and did not go. */
	int TakeNewBindings()
	{
		int Count = 0;
		for (const std::string& Line : TakeTrace())
		{
			Count += Line.starts_with("bind ");
			Count -= Line.starts_with("unbind ") ? std::stoi(Line.substr(Line.rfind('(') + 1)) : 0;
		}
		return Count;
	}

	static std::pair<size_t, DWORD> MemoryAndHandles()
	{
		PROCESS_MEMORY_COUNTERS_EX Memory{};
		GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&Memory), sizeof Memory);
		DWORD Handles = 0;
		GetProcessHandleCount(GetCurrentProcess(), &Handles);
		return {Memory.PrivateUsage, Handles};
	}
};

TEST_F(Soak, ALongSessionGrowsNothing)
{
	Driver.Start(Options);
	constexpr int WarmUp = 5;
	size_t Objects = 0;
	size_t Names = 0;
	std::pair<size_t, DWORD> Process;
	for (int Round = 0; Round < WarmUp + (bIsLong ? 1000 : 15); ++Round)
	{
		if (Round == WarmUp)
		{
			Objects = HostObjects::Num();
			Names = HostNames::Num();
			Process = MemoryAndHandles();
		}
		PlayRound();
		TakeLog("LogTemp");
		const int NewBindings = TakeNewBindings();
		ASSERT_EQ(NewBindings, Round == 0 ? NewBindings : 0) << "round " << Round;
	}
	EXPECT_EQ(HostObjects::Num(), Objects);
	EXPECT_EQ(HostNames::Num(), Names);
	EXPECT_LT(MemoryAndHandles().first, Process.first + (size_t(1) << 20));
	EXPECT_EQ(MemoryAndHandles().second, Process.second);
}

TEST_F(Soak, RestartsLeaveTheProjectAsItIs)
{
	namespace fs = std::filesystem;
	const fs::path Project = *Options.ProjectFolder;
	const auto Play = [&](int Restarts)
	{
		const fs::path Story = Project.parent_path() / (Project.filename().string() + ".story");
		std::ofstream File(Story);
		File << "start\nlayout TwoPanesHoriz\ncreate asset AssetTypeActions_TonalithObject.AssetTypeActions_Tonalith "
			 << "/Game/Looks/Night\nopen menu View TNLDisplaySubMenu TNLAssetSelection\nclick Night\nquit\n";
		for (int Restart = 0; Restart < Restarts; ++Restart)
		{
			File << "start\nlayout TwoPanesHoriz\nopen menu View TNLDisplaySubMenu\nclick EnableDisplay\nquit\n";
		}
		File.close();
		const FProgramResult Result = RunHeadlessEditor(
			L"-story=" + Story.wstring() + L" -project=" + Project.wstring() + L" -plugins=" TEXT(EDITOR_TEST_PLUGINS));
		fs::remove(Story);
		EXPECT_EQ(Result.ExitCode, 0u) << Result.Output;
		std::map<std::string, std::uintmax_t> Sizes;
		for (const fs::directory_entry& Entry : fs::recursive_directory_iterator(Project))
		{
			Sizes[Entry.path().string()] = Entry.is_directory() ? 0 : Entry.file_size();
		}
		return Sizes;
	};
	const auto Twice = Play(2);
	EXPECT_GT(Twice.size(), 3u);
	EXPECT_EQ(Play(bIsLong ? 50 : 4), Twice);
}
