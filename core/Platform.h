// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Printing.h"

#include <filesystem>
#include <string>
#include <string_view>

// What the program's logic asks of the machine it runs on. Floor 4 implements these services for a desktop
// or for a terminal; tests put fakes in their place.
namespace orvel {

enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Icon { None, Critical, Question, Information, Warning };
enum class Reply { None, Ok, Yes, No, Cancel };

// A modal box. The text keeps the CR and CR LF that the logic put into it; it is never markup.
struct Message {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
};

class MessageBoxService {
public:
    virtual ~MessageBoxService() = default;
    // Shows the box and returns the button that closed it.
    virtual Reply Show(const Message& message) = 0;
};

class Beeper {
public:
    virtual ~Beeper() = default;
    virtual void Beep() = 0;
};

// A local date and time of day.
struct DateTime {
    int year = 0;
    int month = 0; // 1 to 12
    int day = 0;   // 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime Now() = 0;
};

// Flags of the common file dialogs.
enum DialogFlag : unsigned {
    kOverwritePrompt = 0x2, // ask before an existing file is taken
    kHideReadOnly = 0x4,    // no box "open read-only"
    kPathMustExist = 0x800,
    kCreatePrompt = 0x2000,
};

inline constexpr unsigned kSaveDialogFlags =
    kCreatePrompt | kHideReadOnly | kOverwritePrompt | kPathMustExist;

// What a dialog for opening or saving is asked for.
struct FileDialog {
    std::string title;
    std::string filter;                  // "Text Files (*.txt)|*.txt": what is shown, "|", the pattern
    std::string defaultExtension;        // added to a typed name that has no extension at all
    std::filesystem::path initialFolder; // empty: where the dialog likes
    unsigned flags = 0;                  // of DialogFlag
};

// Both return the chosen file, or an empty path when the user cancelled.
class FileDialogService {
public:
    virtual ~FileDialogService() = default;
    virtual std::filesystem::path Open(const FileDialog& dialog) = 0;
    virtual std::filesystem::path Save(const FileDialog& dialog) = 0;
};

class FolderBrowser {
public:
    virtual ~FolderBrowser() = default;
    // The chosen folder, or an empty path when the user cancelled.
    virtual std::filesystem::path Browse(const std::string& title) = 0;
};

class KeySender {
public:
    virtual ~KeySender() = default;
    // Presses Ctrl and the letter as if typed into the control that has the focus.
    virtual void SendCtrl(char letter) = 0;
};

// Texts that are kept for each user, under the application's title.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    // The fallback when nothing was kept.
    virtual std::string Get(const std::string& section, const std::string& key,
                            const std::string& fallback) = 0;
    virtual void Save(const std::string& section, const std::string& key, const std::string& value) = 0;
};

class EventPump {
public:
    virtual ~EventPump() = default;
    // Handles the window events that wait. False when the program is to end.
    virtual bool ProcessEvents() = 0;
    // Handles those of them that are no keys or clicks; these stay, in their order.
    virtual void ProcessAllButInput() = 0;
};

// The services in force. Those that a routine uses must be set before it is called; the caller of UsePlatform
// keeps the objects alive.
struct Platform {
    MessageBoxService* messageBox = nullptr;
    Beeper* beeper = nullptr;
    Clock* clock = nullptr;
    // For windows only.
    FileDialogService* fileDialogs = nullptr;
    FolderBrowser* folderBrowser = nullptr;
    KeySender* keySender = nullptr;
    SettingsStore* settingsStore = nullptr;
    EventPump* eventPump = nullptr;
    PrintDialogService* printDialog = nullptr;
    Printer* printer = nullptr;
};

[[nodiscard]] const Platform& CurrentPlatform();
void UsePlatform(const Platform& platform);

} // namespace orvel
