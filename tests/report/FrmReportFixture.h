// SPDX-FileCopyrightText: 2026 The ORVEL developers
// SPDX-License-Identifier: MIT
#pragma once

#include "report/frmReport.h"
#include "tests/report/PrintableBox.h"
#include "tests/support/OpenedExamples.h"
#include "tests/support/TestFiles.h"

#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>

namespace orvel::testing {

// Notes what is done to the box, but for its sections and the colouring of single marks.
class ReportBox : public PrintableBox {
public:
    explicit ReportBox(Surroundings& ofTest) : PrintableBox(ofTest), surroundings(ofTest) {}

    void SetText(std::string_view newText) override {
        if (newText.empty()) {
            surroundings.Note("emptied");
        }
        PrintableBox::SetText(newText);
    }
    void SetReadOnly(bool isReadOnly) override {
        surroundings.Note(isReadOnly ? "read-only" : "not read-only");
        PrintableBox::SetReadOnly(isReadOnly);
    }
    void SetSelectionFontName(const std::string& name) override {
        surroundings.Note("selection font " + name);
        PrintableBox::SetSelectionFontName(name);
    }
    void SetSelectionFontSize(int points) override {
        surroundings.Note("selection size " + std::to_string(points));
        PrintableBox::SetSelectionFontSize(points);
    }

private:
    Surroundings& surroundings;
};

// A store that keeps numbers of the window, and notes what is asked and told.
class NotingStore : public SettingsStore {
public:
    explicit NotingStore(Surroundings& ofTest) : surroundings(ofTest) {}

    std::map<std::string, std::string> values;

    std::string Get(const std::string& section, const std::string& key,
                    const std::string& fallback) override {
        surroundings.Note("get " + section + "/" + key + " or " + fallback);
        const auto found = values.find(key);
        return found == values.end() ? fallback : found->second;
    }
    void Save(const std::string& section, const std::string& key, const std::string& value) override {
        surroundings.Note("keep " + section + "/" + key + " " + value);
        values[key] = value;
    }

private:
    Surroundings& surroundings;
};

// Tests of the report window's logic: it notes what is done to its view.
class FrmReport : public PrintingTest, public OpenedExamples, public frmReport::View {
protected:
    FrmReport() {
        Platform platform = CurrentPlatform();
        platform.settingsStore = &store;
        UsePlatform(platform);
    }

    // A loaded window on the report of 1978.
    void LoadPivot() {
        OpenPivot();
        window.Form_Load();
        Said();
    }

    [[nodiscard]] bool ShowsReport() const { return reportBox.Text().starts_with("     "); }

    TemporaryFolder folder;
    NotingStore store{surroundings};
    ReportBox reportBox{surroundings};
    float left = 0;
    float top = 0;
    float width = 12000;
    float height = 9000;
    bool isMinimized = false;
    std::optional<ErrorNumber> resizeError;
    frmReport window{*this, surroundings};

private:
    static std::string Text(float length) { return std::to_string(static_cast<int>(length)); }

    RichTextBox& ReportRTB() override { return reportBox; }
    void SetReportSize(float newWidth, float newHeight) override {
        surroundings.Note("report " + Text(newWidth) + " by " + Text(newHeight));
    }
    void ShowPressed(frmReport::ToolButton button, bool isPressed) override {
        surroundings.Note("button " + std::to_string(static_cast<int>(button)) +
                          (isPressed ? " pressed" : " unpressed"));
    }
    void SetStatusText(const std::string& text) override { surroundings.Note("status " + text); }
    [[nodiscard]] float Left() const override { return left; }
    [[nodiscard]] float Top() const override { return top; }
    [[nodiscard]] float Width() const override { return width; }
    [[nodiscard]] float Height() const override { return height; }
    void SetLeft(float newLeft) override {
        surroundings.Note("left " + Text(newLeft));
        left = newLeft;
    }
    void SetTop(float newTop) override {
        surroundings.Note("top " + Text(newTop));
        top = newTop;
    }
    void SetWidth(float newWidth) override {
        surroundings.Note("width " + Text(newWidth));
        width = newWidth;
    }
    void SetHeight(float newHeight) override {
        surroundings.Note("height " + Text(newHeight));
        RaiseIf(resizeError);
        height = newHeight;
    }
    [[nodiscard]] bool IsMinimized() const override { return isMinimized; }
    [[nodiscard]] float InnerWidth() const override { return width - 100; }
    [[nodiscard]] float InnerHeight() const override { return height - 400; }
    void Unload() override { surroundings.Note("unload"); }
};

} // namespace orvel::testing
