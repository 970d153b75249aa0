// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A computer of rows of data in place of the platform's volumes, drives and storage devices.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>
#include <windows.h>

/** What a storage device answers. */
struct FakeDevice
{
	std::string serial = {};
	bool isRemovable = false;

	/** None: the device refuses to tell. */
	std::optional<DWORD> partition = {};

	/** Where the answer claims the serial number to be; by itself behind the head, or 0 without a serial number. */
	std::optional<DWORD> serialOffset = {};
};

/** A local volume, or a drive of a network, which has no volume. */
struct FakeVolume
{
	/** As L"E:\\". The drive's root first; more for folders into which the volume is mounted. */
	std::vector<std::wstring> paths;
	std::wstring label = {};
	std::wstring fileSystem = L"NTFS";
	UINT driveType = DRIVE_FIXED;
	DWORD flags = 0;
	std::uint64_t capacity = 0;
	std::uint64_t available = 0;

	/** None: the device cannot be opened. */
	std::optional<FakeDevice> device = {};

	/** By itself L"\\\\?\\Volume{<row>}\\". A name that fills the caller's buffer gets no NUL. */
	std::wstring name = {};
};

/** Serves all queries of this program's volumes as long as it lives. Its rows may be changed under its mutex. */
class FakeComputer
{
public:
	explicit FakeComputer(std::vector<FakeVolume> rows);

	/** Fails the test when a device or a search was left open. */
	~FakeComputer();
	FakeComputer(const FakeComputer&) = delete;
	FakeComputer& operator=(const FakeComputer&) = delete;

	/** Makes the first so many calls of a function fail; of DeviceIoControl the calls with a control code. */
	void fail(const std::string& function, DWORD error, int count = 1);
	void failControl(DWORD code, DWORD error);

	std::mutex mutex;
	std::vector<FakeVolume> volumes;

	/** Called when a volume's information is asked for, with the root; no mutex is held. */
	std::function<void(const std::wstring&)> onQuery = [](const std::wstring&) {};

	/** How often volumes' information was asked for. */
	std::atomic<int> queries = 0;

private:
	struct Failure
	{
		DWORD error;
		int count;
	};

	template <class Function, class StandIn>
	void serve(const char* name, Function* function, StandIn standIn);
	void serveVolumes();
	void serveDrives();
	void serveDevices();

	bool isFailing(const std::string& function);
	std::wstring nameOf(std::size_t row) const;
	const FakeVolume* findDrive(const std::wstring& path) const;
	BOOL nextVolume(HANDLE search, wchar_t* name, DWORD room);
	BOOL mountPaths(const std::wstring& name, wchar_t* out, DWORD room, DWORD* length);
	BOOL answer(const FakeDevice& device, DWORD code, void* out, DWORD room, DWORD* length) const;

	std::map<std::string, Failure> failures_;
	/** By handle: open searches with the row that comes next, and open devices. */
	std::map<HANDLE, std::size_t> searches_;
	std::map<HANDLE, FakeDevice> devices_;
	std::uintptr_t lastHandle_ = 0x10000000;
	std::vector<std::shared_ptr<void>> replacements_;
};
