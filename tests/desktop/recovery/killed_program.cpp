#include "tests/desktop/recovery/killed_program.h"

#include <QElapsedTimer>
#include <QProcessEnvironment>
#include <QThread>

#include <fstream>
#include <sstream>

namespace quor::desktop::test {

namespace fs = std::filesystem;

namespace {

constexpr int kPatience = 20'000;

} // namespace

Home::Home() { fs::create_directories(copies()); }

std::size_t Home::copyCount() const {
    std::size_t count = 0;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(copies()))
        count += entry.path().extension() == ".dxf" ? 1 : 0;
    return count;
}

QString Home::file(const std::string& name, const std::string& text) const {
    const fs::path path = folder() / name;
    std::ofstream(path, std::ios::binary) << text;
    return QString::fromStdString(path.string());
}

std::string Home::bytes(const std::string& name) const {
    std::ostringstream bytes;
    bytes << std::ifstream(folder() / name, std::ios::binary).rdbuf();
    return bytes.str();
}

KilledProgram::KilledProgram(const Home& home, const QString& program, const QStringList& arguments) : home_(home) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString folder = QString::fromStdString(home.folder().string());
    environment.insert("HOME", folder);
    environment.insert("XDG_CONFIG_HOME", folder + "/config");
    environment.insert("XDG_STATE_HOME", folder + "/state");
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process_.setProcessEnvironment(environment);
    process_.setWorkingDirectory(folder);
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start(program, arguments);
}

KilledProgram::~KilledProgram() { kill(); }

bool KilledProgram::becomes(const std::function<bool()>& condition) {
    QElapsedTimer clock;
    clock.start();
    while (!condition() && clock.elapsed() < kPatience)
        QThread::msleep(5);
    return condition();
}

bool KilledProgram::hasCopied() {
    return becomes([&] { return home_.copyCount() > 0; });
}

bool KilledProgram::hasMade(const std::string& file) {
    return becomes([&] { return fs::exists(home_.folder() / file); });
}

void KilledProgram::kill() {
    process_.kill();
    process_.waitForFinished(kPatience);
}

int KilledProgram::terminate() {
    process_.terminate();
    process_.waitForFinished(kPatience);
    return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

} // namespace quor::desktop::test
