#pragma once

#include <QClipboard>
#include <QGuiApplication>

#include "desktop/QtText.h"
#include "platform/Clipboard.h"

namespace ostrel::desktop {

/// The clipboard that all applications of the desktop share.
class QtClipboard final : public Clipboard {
public:
    /// Line ends become those of the component, since other applications write a bare LF.
    Text GetText() override {
        QString text = QGuiApplication::clipboard()->text();
        text.replace("\r\n", "\n").replace('\n', "\r\n");
        return FromQt(text);
    }
    void SetText(const Text& text) override {
        QString shown = ToQt(text);
        QGuiApplication::clipboard()->setText(shown.replace("\r\n", "\n"));
    }
    void Clear() override { QGuiApplication::clipboard()->clear(); }
};

} // namespace ostrel::desktop
