// The catalogue of menus and tool bars: what each row names exists, and is told apart from the others.
#include "desktop/qt_text.h"
#include "desktop/window/action_table.h"
#include "desktop/window/icons.h"
#include "host/ed/command_table.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "tests/desktop/window/at_the_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QKeySequence>
#include <QStringList>

#include <set>

namespace quor::desktop::test {
namespace {

using testing::IsEmpty;

const QString kIconFiles = QUOR_SAMPLE_DRAWINGS "/../../desktop/icons";

// The letter that is typed with Alt; nothing when there is none.
QString mnemonicOf(const wchar_t* text) {
    const QString shown = toQt(text);
    const qsizetype mark = shown.indexOf('&');
    return mark < 0 ? QString() : shown.mid(mark + 1, 1).toUpper();
}

// All that stands in a menu, with the titles of its submenus; the menu bar is the menu of its own titles.
std::vector<std::vector<Text>> menus() {
    std::vector<std::vector<Text>> all(1);
    for (const MenuRow& menu : menuRows()) {
        if (menu.parent == menu.place)
            all.front().push_back(menu.title);
        std::vector<Text>& entries = all.emplace_back();
        for (const ActionRow& row : actionRows())
            if (row.menu == menu.place)
                entries.push_back(row.text);
        for (const MenuRow& sub : menuRows())
            if (sub.parent == menu.place && sub.place != menu.place)
                entries.push_back(sub.title);
    }
    return all;
}

// What two entries of a menu share, and entries that have no letter.
std::vector<std::string> wrongMnemonics(const wchar_t* Text::*language) {
    std::vector<std::string> wrong;
    for (const std::vector<Text>& entries : menus()) {
        QStringList seen;
        for (const Text& text : entries) {
            const QString letter = mnemonicOf(text.*language);
            if (letter.isEmpty() || seen.contains(letter))
                wrong.push_back(toQt(text.*language).toStdString());
            seen.push_back(letter);
        }
    }
    return wrong;
}

TEST(ActionTableTest, EveryChineseEntryHasALetterOfItsOwnInItsMenu) {
    EXPECT_THAT(wrongMnemonics(&Text::chinese), IsEmpty());
}

TEST(ActionTableTest, EveryEnglishEntryHasALetterOfItsOwnInItsMenu) {
    EXPECT_THAT(wrongMnemonics(&Text::english), IsEmpty());
}

TEST(ActionTableTest, NamesAreUnique) {
    std::vector<std::string> twice;
    std::set<std::string> names;
    for (const ActionRow& row : actionRows())
        if (!names.insert(row.name).second)
            twice.emplace_back(row.name);
    EXPECT_THAT(twice, IsEmpty());
}

TEST(ActionTableTest, ShortcutsAreKeysAndUnique) {
    std::vector<std::string> wrong;
    QList<QKeySequence> keys;
    for (const ActionRow& row : actionRows())
        for (const QKeySequence& key : QKeySequence::listFromString(row.shortcuts)) {
            if (key.isEmpty())
                continue;
            if (key[0].key() == Qt::Key_unknown || keys.contains(key))
                wrong.emplace_back(row.name);
            keys.push_back(key);
        }
    EXPECT_THAT(wrong, IsEmpty());
    EXPECT_GT(keys.size(), 20);
}

TEST(ActionTableTest, EveryActionOfAToolBarHasAnIcon) {
    std::vector<std::string> bare;
    for (const ActionRow& row : actionRows())
        if (row.toolBar != ToolBarPlace::None && iconOf(row.name).isNull())
            bare.emplace_back(row.name);
    EXPECT_THAT(bare, IsEmpty());
}

TEST(ActionTableTest, EveryIconFileIsPackedAndUsed) {
    std::set<QString> used{"quor", "float", "more"}; // the program's own, and of docks and tool bars
    for (const ActionRow& row : actionRows())
        used.insert(row.name);
    std::vector<std::string> wrong;
    for (const QString& file : QDir(kIconFiles).entryList({"*.svg"})) {
        const QString name = file.chopped(4);
        if (!used.contains(name) || iconOf(name).isNull())
            wrong.push_back(name.toStdString());
    }
    EXPECT_THAT(wrong, IsEmpty());
    EXPECT_GT(QDir(kIconFiles).entryList({"*.svg"}).size(), 20);
}

TEST(ActionTableTest, EveryTypedLineNamesACommandOrASystemVariable) {
    atTheWindow([](AtTheWindow& at) {
        Session& session = at.person().program().session();
        const auto unknown = at.person().sees([&] {
            std::vector<std::string> names;
            for (const ActionRow& row : actionRows()) {
                if (row.line == nullptr)
                    continue;
                const ZrString line = row.line;
                const ed::CommandWord word = ed::parseCommandWord(std::wstring_view(line).substr(0, line.find(L' ')));
                if (session.commands().find(word) == nullptr && !session.variables().text(word.name))
                    names.emplace_back(row.name);
            }
            return names;
        });
        EXPECT_THAT(unknown, IsEmpty());
    });
}

TEST(ActionTableTest, WhatRunsWithinOthersIsTransparent) {
    atTheWindow([](AtTheWindow& at) {
        Session& session = at.person().program().session();
        const auto refused = at.person().sees([&] {
            std::vector<std::string> names;
            for (const ActionRow& row : actionRows()) {
                const ZrString line = row.line != nullptr ? row.line : L"";
                const ed::CommandWord word = ed::parseCommandWord(std::wstring_view(line).substr(0, line.find(L' ')));
                const ed::Command* const command = session.commands().find(word);
                if (word.transparent && command != nullptr && (command->flags & ed::kTransparent) == 0)
                    names.emplace_back(row.name);
            }
            return names;
        });
        EXPECT_THAT(refused, IsEmpty());
    });
}

TEST(ActionTableTest, WithoutADrawingOnlyWhatNeedsNoneCanBeChosen) {
    atTheWindow([](AtTheWindow& at) {
        at.types("CLOSE");
        for (const ActionRow& row : actionRows())
            EXPECT_EQ(at.isEnabled(row.name), !row.needsDrawing) << row.name;
        at.types("NEW");
        for (const ActionRow& row : actionRows())
            EXPECT_TRUE(at.isEnabled(row.name)) << row.name;
    });
}

} // namespace
} // namespace quor::desktop::test
