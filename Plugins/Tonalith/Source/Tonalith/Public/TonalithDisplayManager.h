// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// The registry of display records, one for each viewport client.
#pragma once

#include "Containers/Map.h"
#include "TonalithDisplayConfiguration.h"
#include "UObject/GCObject.h"

class FViewportClient;

/**
 * Owns the records. A reference that was handed out stays valid until that client's record is removed, whatever else is
 * added or removed. Clients are keys only: they are never dereferenced, so a dead client's pointer is a valid argument.
 * The looks of all records are kept alive; one that is deleted becomes none.
 * In the editor the records of clients that are neither in the editor's list of all viewport clients nor a play session's
 * go by themselves, when that list changes and when a session ends.
 * Game thread.
 */
class FTonalithDisplayManager final : public FGCObject
{
public:
	FTonalithDisplayManager() = default;
	FTonalithDisplayManager(const FTonalithDisplayManager&) = delete;
	FTonalithDisplayManager& operator=(const FTonalithDisplayManager&) = delete;

	/** The client's record; a default one is made when there is none. */
	TONALITH_API FTonalithDisplayConfiguration& FindOrAddDisplayConfiguration(FViewportClient* Client);

	/** The client's record, or null. */
	TONALITH_API const FTonalithDisplayConfiguration* GetDisplayConfiguration(const FViewportClient* Client) const;

	/** @return whether the client had a record */
	TONALITH_API bool RemoveDisplayConfiguration(const FViewportClient* Client);

	/** Removes the records of all other clients. */
	void KeepOnly(const TArray<const FViewportClient*>& Clients);

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;
	virtual FString GetReferencerName() const override;

private:
	/** Behind pointers: growth of the map may not move a record. */
	TMap<const FViewportClient*, TUniquePtr<FTonalithDisplayConfiguration>> Configurations;
};
