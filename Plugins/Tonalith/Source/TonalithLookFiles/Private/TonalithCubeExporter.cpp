// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#include "TonalithCubeExporter.h"

#include "Templates/Casts.h"
#include "TonalithObject.h"

namespace
{
/** Samples a side. */
constexpr int32 UsualSize = 33;
constexpr int32 FineSize = 65;
} // namespace

UTonalithCubeExporter::UTonalithCubeExporter(const FObjectInitializer& ObjectInitializer) : Super(ObjectInitializer)
{
	SupportedClass = UTonalithObject::StaticClass();
	FormatExtension.Add(TEXT("cube"));
	FormatDescription.Add(TEXT("Color lookup table"));
	PreferredFormatIndex = 0;
	bText = true;
}

bool UTonalithCubeExporter::ExportText(
	const FExportObjectInnerContext*, UObject* Object, const TCHAR*, FOutputDevice& Ar, FFeedbackContext*, uint32)
{
	const UTonalithObject* const Look = Cast<UTonalithObject>(Object);
	if (Look)
	{
		Ar.Log(Look->MakeCubeText(bFine ? FineSize : UsualSize));
	}
	return Look != nullptr;
}
