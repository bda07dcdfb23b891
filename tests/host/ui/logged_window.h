// A window that writes down what its handlers are told, and a peer that does the same.
#pragma once

#include "sdk/ui/window.h"

#include <string>
#include <utility>
#include <vector>

namespace quor::test {

using Log = std::vector<std::string>;

// Each line begins with the window's name: "a size 10x20".
class LoggedWindow : public CWnd {
public:
    LoggedWindow(Log& log, std::string name) : log_(log), name_(std::move(name)) {}

    // What the handlers answer.
    bool acceptsCreation = true;
    bool consumesMessages = false;
    bool knowsCommands = false;
    std::intptr_t answer = 0;

    using CWnd::contentChanged;

protected:
    void write(const std::string& what) { log_.push_back(name_ + " " + what); }

    void PreSubclassWindow() override { write("presubclass"); }
    bool OnCreate() override {
        write("create");
        return acceptsCreation;
    }
    void OnDestroy() override { write("destroy"); }
    void OnSize(int width, int height) override {
        write("size " + std::to_string(width) + "x" + std::to_string(height));
    }
    void OnShowWindow(bool shown) override { write(shown ? "shown" : "hidden"); }
    void OnEnable(bool enabled) override { write(enabled ? "enabled" : "disabled"); }
    void OnSetFocus(CWnd* before) override { write("focus from " + nameOf(before)); }
    void OnKillFocus(CWnd* after) override { write("no focus, to " + nameOf(after)); }
    void OnMouseMove(unsigned flags, CPoint point) override { writeMouse("move", flags, point); }
    void OnLButtonDown(unsigned flags, CPoint point) override { writeMouse("left down", flags, point); }
    void OnLButtonUp(unsigned flags, CPoint point) override { writeMouse("left up", flags, point); }
    void OnLButtonDblClk(unsigned flags, CPoint point) override { writeMouse("double", flags, point); }
    void OnRButtonDown(unsigned flags, CPoint point) override { writeMouse("right down", flags, point); }
    void OnRButtonUp(unsigned flags, CPoint point) override {
        writeMouse("right up", flags, point);
        CWnd::OnRButtonUp(flags, point);
    }
    void OnMouseWheel(int lines) override { write("wheel " + std::to_string(lines)); }
    void OnKeyDown(unsigned key, unsigned flags) override {
        write("key " + std::to_string(key) + " flags " + std::to_string(flags));
    }
    void OnContextMenu(CWnd* from, CPoint screen) override {
        writeMouse("menu from " + nameOf(from), 0, screen);
        CWnd::OnContextMenu(from, screen);
    }
    bool PreTranslateMessage(const InputMessage& message) override {
        write("looks for " + nameOf(message.window));
        return consumesMessages;
    }
    bool OnCommand(unsigned id) override {
        write("command " + std::to_string(id));
        return knowsCommands;
    }
    std::intptr_t OnNotify(unsigned id, const ui::Notification& notification) override {
        write("notified by " + std::to_string(id) + " of row " + std::to_string(notification.index));
        return answer;
    }
    std::intptr_t OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) override {
        write("message " + std::to_string(message) + " " + std::to_string(wParam) + " " + std::to_string(lParam));
        return answer;
    }

private:
    static std::string nameOf(CWnd* window) {
        const auto* const logged = dynamic_cast<LoggedWindow*>(window);
        return logged == nullptr ? "nobody" : logged->name_;
    }
    void writeMouse(const std::string& what, unsigned flags, CPoint point) {
        write(what + " at " + std::to_string(point.x) + "," + std::to_string(point.y) + " flags " +
              std::to_string(flags));
    }

    Log& log_;
    std::string name_;
};

// Keeps what it is told, in order; the list must outlive the window.
class RecordingPeer : public ui::WindowPeer {
public:
    explicit RecordingPeer(std::vector<Change>& changes) : changes_(changes) {}
    void changed(CWnd& /*window*/, Change change) override { changes_.push_back(change); }

private:
    std::vector<Change>& changes_;
};

} // namespace quor::test
