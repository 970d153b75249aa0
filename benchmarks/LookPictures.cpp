// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Looks on pictures of 1920 x 1080 as Windows programs see them: the bare loops, and a control changed in a look's window
// until the new picture is there.
#include "EditorDriver.h"
#include "Looks.h"
#include "Session.h"
#include "TonalithImageDesc.h"
#include "TonalithObject.h"
#include "UObject/UObjectGlobals.h"

namespace
{
void edit(benchmark::State& state)
{
	Bench::session();
	UTonalithObject* const look = NewObject<UTonalithObject>();
	const Bench::Frame& frame = Bench::smoothFrame();
	FTonalithAPI_ImageDesc image;
	image.Version = 1;
	image.Pixels = frame.pixels.data();
	image.Width = image.RowLength = static_cast<int32>(frame.width);
	image.Height = static_cast<int32>(frame.height);
	image.ValueScale = image.ExposureScale = image.Maximum = 1.0f;
	look->DisplayUserInterface(image);
	const FString title = look->GetName();
	int round = 0;
	for (auto _ : state)
	{
		Bench::session().Windows().EditProperty(
			title, TEXT("Saturation"), ++round % 2 ? TEXT("(X=1.2,Y=1.1,Z=1,W=1)") : TEXT("(X=0.8,Y=1,Z=1,W=1)"));
		// The next frame draws.
		Bench::session().Windows();
	}
	Bench::session().Windows().Close(title);
}

const bool added = Bench::add({"look's controls on 1920 x 1080, smooth", &Bench::controlsOnSmooth}) &&
				   Bench::add({"look's controls on 1920 x 1080, noise", &Bench::controlsOnNoise}) &&
				   Bench::add({"look's table on 1920 x 1080, smooth", &Bench::tableOnSmooth}) &&
				   Bench::add({"look's table on 1920 x 1080, noise", &Bench::tableOnNoise}) &&
				   Bench::add({"look's controls set up", &Bench::controlsSetUp}) &&
				   Bench::add({"control changed to new picture, 1920 x 1080", &edit});
} // namespace
