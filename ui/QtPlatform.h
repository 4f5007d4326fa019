// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Platform.h"

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <optional>

// The platform services on Qt. Boxes and dialogs belong to the window that is in front.
namespace orvel::ui {

class QtMessageBox : public MessageBoxService {
public:
    Reply Show(const Message& message) override;
};

class QtBeeper : public Beeper {
public:
    void Beep() override;
};

// The local time.
class QtClock : public Clock {
public:
    DateTime Now() override;
};

class QtFolderBrowser : public FolderBrowser {
public:
    std::filesystem::path Browse(const std::string& title) override;
};

// Sends keys to the control that had the focus last; a menu that is open does not count.
class QtKeySender : public QObject, public KeySender {
public:
    QtKeySender();
    void SendCtrl(char letter) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> lastControl;
};

class QtSettingsStore : public SettingsStore {
public:
    std::string Get(const std::string& section, const std::string& key, const std::string& fallback) override;
    void Save(const std::string& section, const std::string& key, const std::string& value) override;
};

class QtEventPump : public EventPump {
public:
    bool ProcessEvents() override;
    void ProcessAllButInput() override;
    // From now on ProcessEvents says that the program is to end.
    void End() { isEnding = true; }

private:
    bool isEnding = false;
};

} // namespace orvel::ui
