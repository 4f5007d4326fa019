// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#include "core/Messages.h"

#include "core/ProgramState.h"
#include "core/Text.h"

#include <string>

namespace orvel {

void Tell(const std::string& text, const char* title) {
    CurrentPlatform().messageBox->Show({text, title, Buttons::Ok, Icon::None});
}

void TellError(const std::string& text, const char* title) {
    CurrentPlatform().messageBox->Show({text, title, Buttons::Ok, Icon::Critical});
}

Reply Ask(const std::string& question, const char* title, Buttons buttons) {
    return CurrentPlatform().messageBox->Show({question, title, buttons, Icon::None});
}

Reply ShowKeptMessage(const Message& message) {
    ProgramState& program = Program();
    program.messageText = message.text;
    program.messageReply = CurrentPlatform().messageBox->Show(message);
    return program.messageReply;
}

void ShowGenerationError(const RunTimeError& error) {
    std::string text = "Sorry, an error occurred generating report...";
    text.append(kCr).append("Error Number: ").append(std::to_string(error.Number()));
    text.append(kCr).append("Error Description: ").append(error.Description());
    text.append(kCr).append("Error Source: ").append(error.Source()).append(kCr);
    Program().shownError = error;
    ShowKeptMessage({text, "Error", Buttons::Ok, Icon::Critical});
}

} // namespace orvel
