// SPDX-FileCopyrightText: The Kelvo authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Os(): the services that this process works with.
//
// A program installs the real ones at the start of main, before anything else runs; a test installs its own.
// The pointers are not owned. Set once on one thread, then only read.
#pragma once

namespace platform
{

class CFileSystem;
class CRegistry;
class CProfiles;
class CShell;
class CMessages;
class CUtility;
class CImageLibrary;
class CChangeNotifications;
class CLibraries;
class CSkinHook;
class CDevices;
class CSerialPorts;
class CPictureSources;
class CScreen;
class CScreenSaver;
class CHandsetLink;
class CMsdModule;

struct Services {
    CFileSystem* files = nullptr;
    CRegistry* registry = nullptr;
    CProfiles* profiles = nullptr;
    CShell* shell = nullptr;
    CMessages* messages = nullptr;  // null in programs without a window
    CUtility* utility = nullptr;
    CImageLibrary* images = nullptr;
    CChangeNotifications* changes = nullptr;  // null where nothing is watched
    CLibraries* libraries = nullptr;
    CSkinHook* skinHook = nullptr;  // null in programs without a window
    // Each null where the program has no use for it.
    CDevices* devices = nullptr;
    CSerialPorts* serialPorts = nullptr;
    CPictureSources* pictureSources = nullptr;
    CScreen* screen = nullptr;
    CScreenSaver* screenSaver = nullptr;
    CHandsetLink* handset = nullptr;
    CMsdModule* cameraStore = nullptr;
};

inline Services& Os()
{
    static Services services;
    return services;
}

}  // namespace platform
