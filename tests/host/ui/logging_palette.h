// A palette that keeps what it is told.
#pragma once

#include "host/sys/utf8.h"
#include "sdk/db/light.h"
#include "sdk/ed/documents.h"
#include "sdk/ui/palette_set_manager.h"

#include <functional>
#include <string>
#include <vector>

namespace quor::test {

using Log = std::vector<std::string>;

class LoggingPalette : public CZrRxPaletteSet {
public:
    // `name` stands before each entry.
    explicit LoggingPalette(Log& log, std::string name = {}) : log_(log), name_(std::move(name)) {}

    bool isCreationRefused = false;
    CSize leastSize;
    // Done in each slot, after its entry.
    std::function<void()> whenTold;

    void sysVarChanged(const ZrString& name) override { say("variable " + toUtf8(name)); }
    void impliedSelectionChanged() override { say("selection"); }
    void objectOpenedForModify(const ZrDbDatabase*, const ZrDbObject* object) override { sayOf("opened", object); }
    void lightAppended(const ZrDbDatabase*, const ZrDbObject* object) override { sayOf("appended", object); }
    void lightChangedNow(const ZrDbDatabase*, const ZrDbObject* object) override {
        sayOf(object->isErased() ? "gone" : "back", object);
    }
    void lightTouched(const ZrDbDatabase*, const ZrDbObject* object) override { sayOf("touched", object); }
    void lightTouchedByUndo(const ZrDbDatabase*, const ZrDbObject* object) override { sayOf("undone", object); }
    void lightTouchedByRedo(const ZrDbDatabase*, const ZrDbObject* object) override { sayOf("redone", object); }
    void documentBecameCurrent(ZrApDocument* document) override { sayOf("current", document); }
    void commandStarting() override { say("command starts"); }
    void documentToBeDestroyed(ZrApDocument* document) override { sayOf("to be destroyed", document); }
    void documentToBeDeactivated(ZrApDocument* document) override { sayOf("to be deactivated", document); }
    void commandFinished() override { say("command finished"); }
    void paletteShownChanged(bool shown) override { say(shown ? "shown" : "hidden"); }
    void GetMinSize(CSize& size) const override { size = leastSize; }

protected:
    bool OnCreate() override { return !isCreationRefused; }
    void OnDestroy() override { say("window destroyed"); }
    void layOut(const CRect& client) override {
        say("laid out " + std::to_string(client.Width()) + " x " + std::to_string(client.Height()));
    }
    std::intptr_t OnMessage(unsigned message, std::uintptr_t, std::intptr_t) override {
        if (message == quor::ui::kIconMessage)
            say("icon wanted");
        return 0;
    }

private:
    void say(const std::string& what) {
        log_.push_back(name_.empty() ? what : name_ + ": " + what);
        if (whenTold)
            whenTold();
    }
    void sayOf(const std::string& what, const ZrDbObject* object) {
        const auto* const light = dynamic_cast<const ZrDbLight*>(object);
        say(what + " " + (light != nullptr ? toUtf8(light->name()) : "something else"));
    }
    void sayOf(const std::string& what, const ZrApDocument* document) {
        say(what + " " + (document != nullptr ? toUtf8(document->fileName()) : "none"));
    }

    Log& log_;
    std::string name_;
};

} // namespace quor::test
