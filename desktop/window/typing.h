// What menus, tabs and dropped files do in a person's place: they type, within the command that waits or at the command
// prompt once that has ended.
#pragma once

#include "sdk/sys/string.h"

#include <QObject>

#include <deque>
#include <functional>
#include <vector>

namespace quor {
class Document;
class Session;
} // namespace quor

namespace quor::desktop {

class DesktopFrontEnd;

class Typing final : public QObject {
    Q_OBJECT

public:
    Typing(Session& session, DesktopFrontEnd& front, QObject* parent);

    // A transparent line runs within the command that waits, any other line after Esc.
    void line(const ZrString& line);
    // Gives a switch its other value, as line() does.
    void switchVariable(const wchar_t* name);
    // All objects: answers a question for objects; at the command prompt they are selected.
    void selectAll();
    // The rest happens at the command prompt, one thing after the other; a command that waits is cancelled.
    void open(const std::vector<ZrString>& files);
    void choose(int document);
    void close(int document);

private:
    void beside(const ZrString& line);
    void atCommandPrompt(std::function<void()> action);
    void proceed();
    // What happens to one of the open drawings, if it is still open then.
    void withDocument(int index, const std::function<void()>& next);

    Session& session_;
    DesktopFrontEnd& front_;
    std::deque<std::function<void()>> waiting_;
};

} // namespace quor::desktop
