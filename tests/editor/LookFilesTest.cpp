// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks from and into .cube files, used as a user would.
#include "Color/CubeWriter.h"
#include "EditorFramework/AssetImportData.h"
#include "EditorReimportHandler.h"
#include "ImportOverride.h"
#include "LookColors.h"
#include "LookTest.h"
#include "UObject/Package.h"

#include <filesystem>
#include <fstream>

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{
/** The same for the same number. */
LookColor::FLookTable MakeTable(size_t Size, double Most = 1.0)
{
	FDraw Draw;
	return drawTable(Draw, 0, Size, 0.0, Most);
}

/** The file of a table, with a title that is not ASCII. */
std::string FileOf(const LookColor::FLookTable& Table)
{
	return LookColor::CubeText(Table).insert(7, "Abend \xC3\xA4");
}
} // namespace

class LookFiles : public FLookTest
{
protected:
	static constexpr const TCHAR* Folder = TEXT("/Game/Looks");

	std::filesystem::path InProject(const char* Name) const
	{
		return std::filesystem::path(*Options.ProjectFolder) / "Mail" / Name;
	}

	/** Puts a file into the project's folder of mail. @return its path, as the editor writes it */
	FString Mail(const char* Name, const std::string& Bytes) const
	{
		std::filesystem::create_directories(InProject("").parent_path());
		std::ofstream(InProject(Name), std::ios::binary) << Bytes;
		return InProject(Name).generic_wstring().c_str();
	}

	UTonalithObject* Import(const FString& File)
	{
		return static_cast<UTonalithObject*>(Driver.ImportFiles({File}, Folder)[0]);
	}

	/** Exports an asset. @return the file's text */
	std::string Return(const TCHAR* Path, const char* Name)
	{
		Driver.Export(Path, InProject(Name).generic_wstring().c_str());
		std::ifstream File(InProject(Name), std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(File), {});
	}

	/** With the look in the first pane. */
	void Show(UTonalithObject* Look, float Weight = 1.0f) { Record(PaneA) = Configured(true, Weight, Look); }

	const LookColor::FLookTable Table = MakeTable(5);
};

TEST_F(LookFiles, BecomeLooksSeveralAtOnce)
{
	StartWithPanes();
	const FString First = Mail("Dusk.cube", FileOf(Table));
	const FString Broken = Mail("Broken.cube", "0 0 0");
	const FString Last = Mail("Night.CUBE", FileOf(MakeTable(2)));
	const TArray<UObject*> Looks = Driver.ImportFiles({First, Broken, Mail("Notes.txt", ""), Last}, Folder);
	EXPECT_THAT(
		TakeTrace(), ElementsAre("pre import cube /Game/Looks/Dusk.Dusk", "post import /Game/Looks/Dusk.Dusk",
						 "import asset /Game/Looks/Dusk.Dusk", "pre import cube /Game/Looks/Broken.Broken",
						 HasSubstr("tell user"), "post import nothing", "pre import cube /Game/Looks/Night.Night",
						 "post import /Game/Looks/Night.Night", "import asset /Game/Looks/Night.Night"));
	EXPECT_EQ(TakeLog("LogTonalithLookFiles").size(), 1u);
	ASSERT_TRUE(Looks[0] && !Looks[1] && !Looks[2] && Looks[3]);
	const UTonalithObject* Dusk = Look(TEXT("/Game/Looks/Dusk.Dusk"));
	EXPECT_EQ(Dusk, Looks[0]);
	EXPECT_EQ(Look(TEXT("/Game/Looks/Broken.Broken")), nullptr);
	EXPECT_TRUE(Dusk->TableTitle.Equals(TEXT("Abend \u00E4")));
	EXPECT_TRUE(Dusk->AssetImportData->GetFirstFilename().Equals(First));
	EXPECT_TRUE(Dusk->GetPackage()->IsDirty());
	EXPECT_THROW(Driver.CreateAsset(TEXT("Color lookup table"), TEXT("/Game/New")), FDriverError);
	EXPECT_THROW(Driver.Undo(), FDriverError) << "a new asset is not a step to undo";
}

TEST_F(LookFiles, ShowInPanesThroughSixteenSamplesAndInWindowsInFull)
{
	StartWithPanes();
	const FPicture Plain = Driver.TakePicture();
	// Shares of the channels: any number of samples says the same, and any way between them.
	LookColor::FLookTable Shares;
	Shares.CubeSize = 2;
	Shares.Cube = {{0, 0.1f, 0}, {0.8f, 0.1f, 0.3f}, {0.2f, 0.9f, 0}, {1, 0.9f, 0.3f}, {0, 0.1f, 0.7f}, {0.8f, 0.1f, 1},
		{0.2f, 0.9f, 0.7f}, {1, 0.9f, 1}};
	UTonalithObject* const Dusk = Import(Mail("Dusk.cube", FileOf(Shares)));
	Show(Dusk);
	TakeTrace();
	const auto Full = [&](const FColor3& Color) { return looked(Shares, Color); };
	EXPECT_LE(WorstStep(Driver.TakePicture(), Plain, Full), 1.01) << "samples of 8 bits";
	Driver.TakePicture();
	EXPECT_THAT(TakeTrace(),
		ElementsAre(HasSubstr("draw"), "update texture 256 x 16", "read pixels", HasSubstr("draw"), "read pixels"));

	Import(Mail("Night.cube", FileOf(Table)));
	Driver.OpenAssets({TEXT("/Game/Looks/Dusk.Dusk"), TEXT("/Game/Looks/Night.Night")});
	const auto Bent = [&](const FColor3& Color) { return looked(Table, Color); };
	EXPECT_LE(WorstStep(Driver.Windows().Picture(TEXT("Night")), Plain, Bent), 1.01);

	// The controls work before the table, and an edit of them needs no new texture.
	TakeTrace();
	Driver.Windows().EditProperty(TEXT("Dusk"), TEXT("Gain"), TEXT("(X=0.5,Y=1,Z=0.8,W=1)"));
	LookColor::FGrading Grading;
	Grading[0].Gain = 0.5;
	Grading[2].Gain = 0.8;
	const auto Both = [&](const FColor3& Color) { return looked(Shares, controlled(Grading, Color)); };
	EXPECT_LE(WorstStep(Driver.Windows().Picture(TEXT("Dusk")), Plain, Both), 1.01);
	EXPECT_LE(WorstStep(Driver.TakePicture(), Plain, Both), 2.0) << "the controls' result has 8 bits in between";
	EXPECT_THAT(TakeTrace(), Each(Not(HasSubstr("update texture"))));

	// The weight blends controls and table, each with what is there.
	Dusk->Gain = FVector4(1, 1, 1, 1);
	Show(Dusk, 0.25f);
	const auto Quarter = [&](const FColor3& Color)
	{
		FColor3 Blend = Full(Color);
		std::transform(Blend.begin(), Blend.end(), Color.begin(), Blend.begin(),
			[](double A, double B) { return A * 0.25 + B * 0.75; });
		return Blend;
	};
	EXPECT_LE(WorstStep(Driver.TakePicture(), Plain, Quarter), 1.01);
	for (const float None : {0.0f, -1.0f, NAN})
	{
		Show(Dusk, None);
		EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), Plain));
	}
}

TEST_F(LookFiles, ReplaceTheTableAndKeepTheLook)
{
	StartWithPanes();
	const FPicture Plain = Driver.TakePicture();
	Warm()->Saturation = FVector4(1, 1, 1, 0.5);
	Show(Warm());
	const FPicture Controls = Driver.TakePicture();
	Driver.OpenAssets({WarmPath});
	const FString File = Mail("Warm.cube", FileOf(Table));
	Warm()->GetPackage()->SetDirtyFlag(false);
	TakeTrace();
	EXPECT_EQ(Import(File), Warm());
	Driver.Windows();
	EXPECT_THAT(TakeTrace(), AllOf(Contains("draw viewport 16 x 8"), Contains("create texture")));
	EXPECT_EQ(Warm()->Saturation.W, 0.5);
	EXPECT_EQ(Record(PaneA).Look, Warm());
	EXPECT_TRUE(Warm()->GetPackage()->IsDirty());
	const FPicture First = Driver.TakePicture();
	EXPECT_FALSE(IsSamePicture(First, Controls));

	Driver.Undo();
	EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), Controls));
	EXPECT_FALSE(Warm()->AssetImportData);
	Import(File);

	// The file has changed: once more, by the menu of the asset.
	Mail("Warm.cube", FileOf(MakeTable(3, 0.5)));
	EXPECT_TRUE(Driver.Reimport(WarmPath));
	const FPicture Second = Driver.TakePicture();
	EXPECT_FALSE(IsSamePicture(Second, First));
	Driver.Undo();
	EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), First));

	// The file has moved, and then it is gone.
	const FString Moved = Mail("Moved.cube", FileOf(MakeTable(3, 0.5)));
	std::filesystem::remove(*File);
	EXPECT_FALSE(Driver.Reimport(WarmPath));
	EXPECT_THAT(TakeLog("LogTonalithLookFiles"), ElementsAre(HasSubstr("Warm.cube: it cannot be opened")));
	EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), First));
	FReimportManager::Instance()->UpdateReimportPaths(Warm(), {Moved, Moved});
	EXPECT_TRUE(Warm()->AssetImportData->GetFirstFilename().Equals(File)) << "a look has one file";
	FReimportManager::Instance()->UpdateReimportPaths(Warm(), {Moved});
	EXPECT_TRUE(Driver.Reimport(WarmPath));
	EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), Second));
	EXPECT_FALSE(Driver.Reimport(ColdPath)) << "it came from no file";
	FReimportManager::Instance()->UpdateReimportPaths(Cold(), {Moved});
}

TEST_F(LookFiles, ThatCannotBeReadChangeNothingAndSayWhy)
{
	HostAssets::Write(Options.ProjectFolder, TEXT("/Script/TonalithEditor.TonalithLevelViewportSettings"),
		TEXT("/Game/Looks/Taken.Taken"));
	StartWithPanes();
	const FString File = Mail("Dusk.cube", FileOf(Table));
	Show(Import(File));
	const FPicture Before = Driver.TakePicture();
	const auto Refuse = [&](const FString& Refused, const std::string& Reason)
	{
		TakeTrace();
		EXPECT_EQ(Import(Refused), nullptr);
		const std::string Line = TCHAR_TO_UTF8(*Refused) + (": " + Reason);
		EXPECT_THAT(TakeLog("LogTonalithLookFiles"), ElementsAre("Error: " + Line));
		EXPECT_THAT(TakeTrace(), Contains("tell user " + Line));
		EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), Before)) << Line;
	};
	Refuse(Mail("Dusk.cube", "LUT_3D_SIZE 2\n0 0 0"), "line 2: expected 8 colors, found the end of the file");
	Refuse(Mail("Taken.cube", FileOf(Table)), "the name is taken by an asset that is no look, /Game/Looks/Taken.Taken");
	Refuse(InProject("Gone.cube").generic_wstring().c_str(),
		"it cannot be opened; it is gone, or another program writes it");
	std::filesystem::resize_file(*File, 300 << 20);
	Refuse(File, "expected at most 256 MB, found 300 MB");

	Mail("Dusk.cube", FileOf(MakeTable(2, 0.5)));
	const auto Open = [&](DWORD Access)
	{ return CreateFileW(*File, Access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr); };
	const HANDLE Writer = Open(GENERIC_WRITE);
	Refuse(File, "it cannot be opened; it is gone, or another program writes it");
	CloseHandle(Writer);
	for (const DWORD Missing : {1u, 0u})
	{
		const ImportOverride Read(
			"ReadFile", &ReadFile,
			[=, Real = &ReadFile](HANDLE Handle, void* Target, DWORD Size, DWORD* Count, OVERLAPPED* Overlapped)
			{ return Real(Handle, Target, Size - Missing, Count, Overlapped) && Missing > 0; },
			GetModuleHandleW(L"HeadlessEditor.dll"));
		Refuse(File, "it cannot be read to its end");
	}
	const HANDLE Reader = Open(GENERIC_READ);
	EXPECT_NE(Import(File), nullptr) << "others may read it";
	CloseHandle(Reader);
	EXPECT_FALSE(IsSamePicture(Driver.TakePicture(), Before));
}

TEST_F(LookFiles, AreWrittenWholeAndShowTheSameElsewhere)
{
	StartWithPanes();
	Driver.ResizePane(PaneA, FIntPoint(64, 48));
	UTonalithObject* const Dusk = Import(Mail("Dusk.cube", FileOf(Table)));
	Dusk->Contrast = FVector4(0.6, 1.4, 1, 1);
	Dusk->Gamma = FVector4(1, 1, 1, 1.6);
	Dusk->Offset = FVector4(0, 0, 0.05, -0.05);
	const std::string Text = Return(TEXT("/Game/Looks/Dusk.Dusk"), "Back.cube");
	EXPECT_THAT(Text.substr(0, 200),
		StartsWith("TITLE \"Abend ??\"\nLUT_1D_SIZE 4081\nLUT_3D_SIZE 33\nLUT_1D_INPUT_RANGE 0.000000 1.000000\n"
				   "LUT_3D_INPUT_RANGE 0.000000 1.000000\n"));
	EXPECT_EQ(std::count(Text.begin(), Text.end(), '\n'), 5 + 4081 + 33 * 33 * 33);
	Import(InProject("Back.cube").generic_wstring().c_str());
	Driver.OpenAssets({TEXT("/Game/Looks/Dusk.Dusk"), TEXT("/Game/Looks/Back.Back")});
	EXPECT_LE(WorstStep(Driver.Windows().Picture(TEXT("Back")), Driver.Windows().Picture(TEXT("Dusk"))), 2.0);

	// A look without table is titled with its own name. Whoever wants it finer says so in the settings.
	EXPECT_THAT(Return(WarmPath, "Warm.cube"), StartsWith("TITLE \"Warm\"\nLUT_3D_SIZE 33\nDOMAIN_MIN 0.000000"));
	EXPECT_THROW(Driver.Export(WarmPath, TEXT("Warm.txt")), FDriverError);
}

TEST_F(LookFiles, DamagedInTheAssetCountAsNone)
{
	const std::filesystem::path Asset = std::filesystem::path(*Options.ProjectFolder) / "Content/Looks/Warm.asset";
	std::ofstream(Asset, std::ios::app) << "TableBytes=0100000000\n";
	StartWithPanes();
	const FPicture Plain = Driver.TakePicture();
	Show(Warm());
	EXPECT_TRUE(IsSamePicture(Driver.TakePicture(), Plain));
	Driver.OpenAssets({WarmPath});
	EXPECT_TRUE(IsSamePicture(Driver.Windows().Picture(TEXT("Warm")), Plain));
	EXPECT_THAT(TakeLog("LogTemp"),
		ElementsAre("Warning: Warm is shown without its lookup table: what is stored of it is damaged"));
	EXPECT_EQ(Import(Mail("Warm.cube", FileOf(Table))), Warm());
	EXPECT_FALSE(IsSamePicture(Driver.TakePicture(), Plain)) << "a sound one takes its place";
}

TEST_F(LookFiles, NeedNeitherEditorNorRendererAndAreFinerWhenTheSettingsSaySo)
{
	const std::filesystem::path Settings =
		std::filesystem::path(*Options.ProjectFolder) / "Saved/Config/WindowsEditor/EditorPerProjectUserSettings.ini";
	std::filesystem::create_directories(Settings.parent_path());
	std::ofstream(Settings) << "[/Script/TonalithLookFiles.TonalithCubeExporter]\nbFine=True\n";
	Options.bIsCommandlet = true;
	Driver.Start(Options);
	EXPECT_EQ(Import(Mail("Warm.cube", FileOf(Table))), Warm());
	EXPECT_THAT(Return(WarmPath, "Back.cube"), HasSubstr("LUT_3D_SIZE 65\n"));
}
