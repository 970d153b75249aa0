// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The string table by itself: its source is compiled into this program, which has a machine-wide folder of its own.
#include "EditorStringTable.h"

#include "ChildProcess.h"
#include "EditorTest.h"
#include "ImportOverride.h"
#include "RedirectMachineFolder.h"

#include <atomic>
#include <boost/filesystem.hpp>
#include <filesystem>
#include <fstream>
#include <shlobj.h>
#include <thread>

using testing::ElementsAre;
using testing::StartsWith;

class StringTable : public FEditorTest
{
protected:
	StringTable()
	{
		std::filesystem::create_directories(Root);
		EXPECT_TRUE(RedirectMachineFolder(Root.wstring().c_str()));
	}

	std::filesystem::path Folder() const { return Root / "Vantor/com.vantor.look/translations/unreal"; }

	void Write(const std::string& Locale, const std::string& Json) const
	{
		std::filesystem::create_directories(Folder());
		std::ofstream(Folder() / ("table_" + Locale + ".json"), std::ios::binary) << Json;
	}

	static std::string Text(const std::string& Key, const std::unordered_map<std::string, std::string>& Arguments = {})
	{
		return TCHAR_TO_UTF8(*LocalizedText(Key, Arguments).ToString());
	}

	/** Not in ASCII: the platform tells it in the code page. */
	const std::filesystem::path Root = std::filesystem::path(*Options.ProjectFolder) / L"Programme f\u00FCr alle";
};

// The fuzzer holds the rest.
TEST_F(StringTable, PlaceholdersAreFilledOnceFromTheStart)
{
	const struct
	{
		const char* Text;
		const char* Expected;
	} Rows[] = {
		{"plain", "plain"},
		{"x{{a}}y{{b}}z", "x1y{{a}}z"},
		{"{{unknown}} {{a}}", "{{unknown}} 1"},
		{"{{ a }}{{A}}", "{{ a }}{{A}}"},
		{"{{}}{{a}}", "empty1"},
		{"{{{a}}}", "{{{a}}}"},
		{"{{x {{a}}", "{{x {{a}}"},
		{"{{\xC3\xBC}}", "\xE4\xB8\xAD"},
	};
	for (const auto& Row : Rows)
	{
		Write("fr", std::string("{\"key\": \"") + Row.Text + "\"}");
		Write("de", "{}");
		EXPECT_TRUE(LoadStringTable("de"));
		EXPECT_TRUE(LoadStringTable("fr"));
		EXPECT_EQ(Text("key", {{"a", "1"}, {"b", "{{a}}"}, {"", "empty"}, {"\xC3\xBC", "\xE4\xB8\xAD"}}), Row.Expected);
		EXPECT_EQ(Text("key"), Row.Text);
	}
}

TEST_F(StringTable, StaysForTheSameFileAndIsReplacedForAnother)
{
	Write("en-US", "{\"key\": \"English\"}");
	Write("fr-CA", "{\"key\": \"Qu\xC3\xA9"
				   "bec\"}");
	EXPECT_TRUE(LoadStringTable("fr"));
	EXPECT_EQ(Text("key"), "Qu\xC3\xA9"
						   "bec");
	EXPECT_EQ(Text("Key"), "Key");

	Write("fr-CA", "{\"key\": \"changed\"}");
	EXPECT_TRUE(LoadStringTable("fr_CA"));
	EXPECT_EQ(Text("key"), "Qu\xC3\xA9"
						   "bec");
	EXPECT_TRUE(LoadStringTable("it"));
	EXPECT_EQ(Text("key"), "English");
	EXPECT_TRUE(LoadStringTable("fr"));
	EXPECT_EQ(Text("key"), "changed");

	std::filesystem::remove_all(Folder());
	EXPECT_FALSE(LoadStringTable("fr"));
	EXPECT_EQ(Text("key"), "key") << "an empty table replaces the old one";
	EXPECT_EQ(Text("A.b {{c}} \xC3\xBC", {{"c", "d"}}), "A.b {{c}} \xC3\xBC");
}

TEST_F(StringTable, ABrokenFileIsReportedAndTheKeysShow)
{
	Write("fr", "{\n\"key\": \"\xFF\"}");
	EXPECT_TRUE(LoadStringTable("fr"));
	EXPECT_EQ(Text("key"), "key");
	EXPECT_THAT(TakeLog("LogTemp"), ElementsAre(testing::AllOf(StartsWith("Warning: LoadStringTable: "),
										testing::EndsWith("table_fr.json:2:9: Invalid encoding in string."))));
}

TEST_F(StringTable, FailuresOfTheFolderAreRaisedAndStopAtStartUp)
{
	std::filesystem::create_directories(Folder().parent_path());
	std::ofstream(Folder(), std::ios::binary) << "a file";
	EXPECT_THROW(LoadStringTable("fr"), boost::filesystem::filesystem_error);
	FInternationalization::Get().SetCurrentCulture(TEXT("fr-CA"));
	LoadEditorStrings();
	EXPECT_THAT(TakeLog("LogTemp"),
		ElementsAre(StartsWith("Warning: LoadEditorStrings: directory_iterator::directory_iterator")));
	EXPECT_EQ(Text("key"), "key");
}

TEST_F(StringTable, AMachineThatTellsNoFolderHasNoFiles)
{
	Write("fr", "{\"key\": \"text\"}");
	const ImportOverride folder("SHGetFolderPathA", &SHGetFolderPathA,
		[real = &SHGetFolderPathA](HWND Owner, int Id, HANDLE Token, DWORD Flags, char* Path)
		{
			real(Owner, Id, Token, Flags, Path);
			return E_FAIL;
		});
	EXPECT_FALSE(LoadStringTable("fr"));
	EXPECT_EQ(Text("key"), "key");
}

TEST_F(StringTable, StartUpTakesTheLanguageOfTheCulture)
{
	Write("en-US", "{\"key\": \"English\"}");
	Write("fr-FR", "{\"key\": \"France\"}");
	Write("fr-ZZ", "{\"key\": \"last\"}");
	FInternationalization::Get().SetCurrentCulture(TEXT("fr-FR"));
	LoadEditorStrings();
	EXPECT_EQ(Text("key"), "last") << "the region is not passed on";
}

TEST_F(StringTable, TheInstallingStepPutsTheFilesWhereTheyAreLookedFor)
{
	SetEnvironmentVariableW(L"ProgramData", Root.c_str());
	const std::filesystem::path Step = std::filesystem::absolute(TONALITH_TRANSLATIONS "/install.cmd").make_preferred();
	EXPECT_EQ(ChildProcess(L"cmd /c " + Step.wstring() + L" /q").exitCode(), 0u);
	EXPECT_TRUE(LoadStringTable("fr"));
	EXPECT_EQ(Text("STonalithWidget.EnableDisplay_Label"), "Afficher le look");
}

TEST_F(StringTable, WithoutACultureStartUpIsFatal)
{
	EXPECT_EXIT(
		{
			FInternationalization::Get().SetCurrentCulture(FString());
			LoadEditorStrings();
		},
		testing::ExitedWithCode(3), "IsValid\\(\\)");
}

TEST_F(StringTable, ServesLookUpsWhileItIsLoaded)
{
	Write("de", "{\"key\": \"de\"}");
	Write("fr", "{\"key\": \"fr\"}");
	EXPECT_TRUE(LoadStringTable("de"));
	std::atomic<bool> bDone = false;
	std::atomic<int> Wrong = 0;
	const auto Read = [&]
	{
		while (!bDone)
		{
			const std::string Seen = Text("key");
			Wrong += Seen != "de" && Seen != "fr";
		}
	};
	std::thread Readers[] = {std::thread(Read), std::thread(Read), std::thread(Read)};
	for (int Round = 0; Round < 50; ++Round)
	{
		EXPECT_TRUE(LoadStringTable(Round % 2 ? "de" : "fr"));
	}
	bDone = true;
	for (std::thread& Reader : Readers)
	{
		Reader.join();
	}
	EXPECT_EQ(Wrong, 0);
}
