// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "Exporters/Exporter.h"

#include "Host/Trace.h"
#include "Misc/Paths.h"
#include "UObject/GeneratedCppIncludes.h"
#include "UObject/UObjectHash.h"

#include <filesystem>
#include <fstream>

namespace
{
class FTextCollector final : public FOutputDevice
{
public:
	void Serialize(const TCHAR* Text, ELogVerbosity::Type, const FName&) override { Bytes += TCHAR_TO_UTF8(Text); }

	std::string Bytes;
};
} // namespace

UExporter::UExporter(const FObjectInitializer& ObjectInitializer) : UObject(ObjectInitializer) {}

HOST_DEFINE_OWN_CLASS(Engine, U, Exporter, nullptr)

UExporter* UExporter::FindExporter(UObject* Object, const TCHAR* Extension)
{
	TArray<UClass*> Classes;
	GetDerivedClasses(StaticClass(), Classes);
	for (UClass* Class : Classes)
	{
		const UExporter* const Default = static_cast<UExporter*>(Class->GetDefaultObject());
		if (Default && Object->IsA(Default->SupportedClass) && Default->FormatExtension.Contains(FString(Extension)))
		{
			return NewObject<UExporter>(CreatePackage(TEXT("/Engine/Transient")), Class);
		}
	}
	return nullptr;
}

int32 UExporter::ExportToFile(UObject* Object, UExporter* Exporter, const TCHAR* Filename, bool, bool, bool)
{
	FTextCollector Text;
	if (!Exporter->bText || !Exporter->ExportText(nullptr, Object, *FPaths::GetExtension(Filename), Text, nullptr))
	{
		return 0;
	}
	HostTrace::Line(TEXT("export asset %s"), *Object->GetPathName());
	const std::filesystem::path File(Filename);
	std::error_code Ignored;
	std::filesystem::create_directories(File.parent_path(), Ignored);
	std::ofstream Stream(File, std::ios::binary);
	return Stream.write(Text.Bytes.data(), static_cast<std::streamsize>(Text.Bytes.size())).flush() ? 1 : 0;
}
