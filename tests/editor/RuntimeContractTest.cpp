// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// What the runtime module promises to the modules beside it.
#include "LookTest.h"
#include "UnrealClient.h"

#include <filesystem>
#include <fstream>

class RuntimeContract : public FEditorTest
{
};

TEST_F(RuntimeContract, RecordsStayWhereTheyAreUntilRemoved)
{
	Driver.Start(Options);
	std::vector<FViewportClient> Clients(1000);
	std::vector<FTonalithDisplayConfiguration*> Records;
	for (FViewportClient& Client : Clients)
	{
		EXPECT_EQ(DisplayRecords().GetDisplayConfiguration(&Client), nullptr);
		Records.push_back(&DisplayRecords().FindOrAddDisplayConfiguration(&Client));
		EXPECT_FALSE(Records.back()->bDisplay);
		EXPECT_EQ(Records.back()->Look.Get(), nullptr);
	}
	for (size_t Index = 0; Index < Clients.size(); Index += 2)
	{
		EXPECT_TRUE(DisplayRecords().RemoveDisplayConfiguration(&Clients[Index]));
		EXPECT_FALSE(DisplayRecords().RemoveDisplayConfiguration(&Clients[Index]));
	}
	for (size_t Index = 0; Index < Clients.size(); ++Index)
	{
		EXPECT_EQ(DisplayRecords().GetDisplayConfiguration(&Clients[Index]), Index % 2 ? Records[Index] : nullptr);
	}
	Driver.Quit();
}

TEST_F(RuntimeContract, TheRegistryIsTheFirstOwnVirtualFunction)
{
	class IAnyModule : public IModuleInterface
	{
	public:
		virtual void* FirstOwn() = 0;
	};
	Driver.Start(Options);
	EXPECT_EQ(FModuleManager::LoadModuleChecked<IAnyModule>("Tonalith").FirstOwn(), &DisplayRecords());
	Driver.Quit();
}

namespace
{
/** The plug-in without its runtime module: the library is there, but nothing says whose it is. */
FString StageWithoutRuntime()
{
	namespace fs = std::filesystem;
	const fs::path Root = fs::temp_directory_path() / L"tonalith-without-runtime";
	const fs::path Binaries = Root / L"Tonalith/Binaries/Win64";
	fs::remove_all(Root);
	fs::create_directories(Binaries);
	for (const wchar_t* Library : {L"UnrealEditor-Tonalith.dll", L"UnrealEditor-TonalithEditor.dll"})
	{
		fs::copy(fs::path(TEXT(EDITOR_TEST_PLUGINS)) / L"Tonalith/Binaries/Win64" / Library, Binaries / Library);
	}
	std::ofstream(Root / L"Tonalith/Tonalith.uplugin")
		<< R"({"Modules": [{"Name": "TonalithEditor", "Type": "Editor", "LoadingPhase": "Default"}]})";
	std::ofstream(Binaries / L"UnrealEditor.modules")
		<< R"({"BuildId": "headless", "Modules": {"TonalithEditor": "UnrealEditor-TonalithEditor.dll"}})";
	return Root.generic_wstring().c_str();
}
} // namespace

TEST_F(RuntimeContract, WithoutTheRuntimeModuleThePaneIsFatal)
{
	Options.PluginFolders[0] = StageWithoutRuntime();
	EXPECT_EXIT(
		{
			Driver.Start(Options);
			Driver.OpenPane(TEXT("OnePane.Viewport 1.Viewport0"));
		},
		testing::ExitedWithCode(3),
		testing::AllOf(testing::HasSubstr("Assertion failed: Module "), testing::HasSubstr("ModuleName=Tonalith,")));
}
