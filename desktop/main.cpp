// quor: the host on the desktop.
#include "desktop/program.h"
#include "host/sys/language_choice.h"
#include "host/sys/settings_store.h"
#include "host/texts/text.h"

#include <QApplication>
#include <QTimer>

int main(int count, char** arguments) {
    using namespace quor;
    QApplication application(count, arguments);
    desktop::ProgramOptions options;
    SettingsStore settings;
    options.session.language = sys::languageOf(settings);
    setLanguage(options.session.language == L"en" ? Language::English : Language::Chinese);
    const QStringList given = QApplication::arguments().mid(1);
    for (const QString& drawing : given)
        options.drawings.emplace_back(drawing.toStdString());
    desktop::Program program(std::move(options));
    QTimer::singleShot(0, &application, [&] {
        program.run();
        QApplication::quit();
    });
    return QApplication::exec();
}
