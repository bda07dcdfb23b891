// A program that runs beside the test, with a person's folder of its own, until it is killed.
#pragma once

#include "tests/support/test_session.h"

#include <QProcess>
#include <QStringList>

#include <filesystem>
#include <string>

namespace quor::desktop::test {

// What the programs of one person share.
class Home {
public:
    Home();

    [[nodiscard]] std::filesystem::path folder() const { return folder_.path(); }
    [[nodiscard]] std::filesystem::path copies() const { return folder() / "state/quor/autosave"; }
    [[nodiscard]] std::size_t copyCount() const;
    // Makes a file of that text; its path.
    [[nodiscard]] QString file(const std::string& name, const std::string& text) const;
    // The bytes of a file of it.
    [[nodiscard]] std::string bytes(const std::string& name) const;

private:
    quor::test::TemporaryFolder folder_;
};

class KilledProgram {
public:
    // Starts a program of this build, "quor" or the test program itself.
    KilledProgram(const Home& home, const QString& program, const QStringList& arguments);
    ~KilledProgram();

    // Until it has written a copy of its drawing, or made a file of that name in its home; false when it takes too
    // long.
    [[nodiscard]] bool hasCopied();
    [[nodiscard]] bool hasMade(const std::string& file);
    void kill();
    // Asks it to end; the status that it ends with.
    int terminate();

private:
    [[nodiscard]] bool becomes(const std::function<bool()>& condition);

    const Home& home_;
    QProcess process_;
};

} // namespace quor::desktop::test
