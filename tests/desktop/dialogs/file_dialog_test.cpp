// Files are chosen by keyboard alone, and what they hold is seen before.
#include "desktop/dialogs/file_dialog.h"

#include "desktop/dialogs/dialogs.h"
#include "desktop/dialogs/polar_view.h"
#include "desktop/dialogs/preview_pane.h"
#include "desktop/dialogs/web_preview.h"
#include "desktop/qt_text.h"
#include "host/document.h"
#include "host/sys/settings_store.h"
#include "tests/desktop/dialogs/dialog_steps.h"
#include "tests/support/test_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

namespace quor::desktop::test {
namespace {

using quor::test::TestSession;
using testing::HasSubstr;

FileQuestion webQuestion() {
    FileQuestion question;
    question.caption = L"选择光域网文件";
    question.filters = {{L"IES", L"*.ies"}};
    question.previews = true;
    return question;
}

class FileDialogTest : public testing::Test {
protected:
    void SetUp() override {
        put("street.ies", QString(QUOR_BUILD_DIR) + "/share/quor/webs/street.ies");
        put("UPPER.IES", QString(QUOR_BUILD_DIR) + "/share/quor/webs/downlight.ies");
        QFile notes(path("notes.txt"));
        ASSERT_TRUE(notes.open(QIODevice::WriteOnly));
    }

    void put(const QString& name, const QString& from) { ASSERT_TRUE(QFile::copy(from, path(name))); }
    [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }
    [[nodiscard]] QString chosen(const FileQuestion& question, const std::vector<Step>& steps) {
        FileDialog dialog(question, folder_.path(), {}, nullptr);
        later(steps);
        dialog.exec();
        return dialog.chosenFile();
    }

    QTemporaryDir folder_;
};

FileDialog& dialog() { return *qobject_cast<FileDialog*>(openDialog()); }

// Until the folder has been read, which happens beside the program.
Step untilListed(const QString& file) {
    return until([=] {
        const auto* const view = dialog().findChild<QAbstractItemView*>("treeView");
        const QModelIndex first = view->model()->index(0, 0, view->rootIndex());
        return !view->model()->match(first, Qt::DisplayRole, file).isEmpty();
    });
}

TEST_F(FileDialogTest, ATypedNameIsTakenFromTheFolderShown) {
    EXPECT_EQ(chosen(webQuestion(), {type("street.ies"), press(Qt::Key_Return)}), path("street.ies"));
}

TEST_F(FileDialogTest, TheEndingMayBeLeftOut) {
    EXPECT_EQ(chosen(webQuestion(), {type("street"), press(Qt::Key_Return)}), path("street.ies"));
}

TEST_F(FileDialogTest, EscChoosesNothing) { EXPECT_EQ(chosen(webQuestion(), {press(Qt::Key_Escape)}), ""); }

TEST_F(FileDialogTest, ANameWithoutAFileIsComplainedAboutAndTheDialogStays) {
    QString complaint;
    const QString file = chosen(webQuestion(), {type("nothing.ies"), press(Qt::Key_Return),
                                                [&] { complaint = dialog().complaint(); }, [] { dialog().reject(); }});
    EXPECT_TRUE(complaint.contains("nothing.ies"));
    EXPECT_EQ(file, "");
}

TEST_F(FileDialogTest, TheListIsWalkedByArrowKeys) {
    const QString file = chosen(webQuestion(), {untilListed("street.ies"),
                                                [] { dialog().findChild<QAbstractItemView*>("treeView")->setFocus(); },
                                                press(Qt::Key_Home), press(Qt::Key_Down), press(Qt::Key_Up),
                                                press(Qt::Key_Down), press(Qt::Key_Return)});
    EXPECT_EQ(file, path("UPPER.IES"));
}

TEST_F(FileDialogTest, TheListHoldsWhatTheFilterNamesInEitherCase) {
    QStringList names;
    (void)chosen(webQuestion(), {untilListed("street.ies"),
                                 [&] {
                                     auto* const view = dialog().findChild<QAbstractItemView*>("treeView");
                                     for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row)
                                         names << view->model()->index(row, 0, view->rootIndex()).data().toString();
                                 },
                                 [] { dialog().reject(); }});
    EXPECT_EQ(names.join(" "), "street.ies UPPER.IES");
}

TEST_F(FileDialogTest, TheFilterIsShownWithItsPattern) {
    const FileDialog dialog(webQuestion(), folder_.path(), {}, nullptr);
    EXPECT_EQ(dialog.nameFilters(), QStringList("IES (*.ies)"));
}

TEST_F(FileDialogTest, TheCaptionIsTheWindowsTitle) {
    const FileDialog dialog(webQuestion(), folder_.path(), {}, nullptr);
    EXPECT_EQ(dialog.windowTitle(), "选择光域网文件");
}

TEST_F(FileDialogTest, SavingTakesANewNameWithTheEndingOfTheFilter) {
    FileQuestion question;
    question.filters = {{L"DXF", L"*.dxf"}};
    question.forSaving = true;
    EXPECT_EQ(chosen(question, {type("plan"), press(Qt::Key_Return)}), path("plan.dxf"));
}

FileQuestion saveQuestion() {
    FileQuestion question;
    question.filters = {{L"IES", L"*.ies"}};
    question.forSaving = true;
    return question;
}

TEST_F(FileDialogTest, SavingAsksBeforeAFileIsReplaced) {
    FileDialog saving(saveQuestion(), folder_.path(), {}, nullptr);
    QString asked;
    later({type("street"), press(Qt::Key_Return), [&] { asked = qobject_cast<QMessageBox*>(openDialog())->text(); },
           press(Qt::Key_R, Qt::AltModifier)});
    saving.exec();
    EXPECT_EQ(asked, "文件 street.ies 已存在。是否替换?");
    EXPECT_EQ(saving.chosenFile(), path("street.ies"));
    EXPECT_TRUE(saving.mayReplace());
}

TEST_F(FileDialogTest, EscAtTheQuestionGoesBackToTheDialog) {
    bool isBack = false;
    const QString file = chosen(saveQuestion(), {type("street"), press(Qt::Key_Return), press(Qt::Key_Escape),
                                                 [&] { isBack = qobject_cast<FileDialog*>(openDialog()) != nullptr; },
                                                 [] { openDialog()->close(); }});
    EXPECT_TRUE(isBack);
    EXPECT_EQ(file, "");
}

TEST_F(FileDialogTest, EnterAtTheQuestionReplacesNothing) {
    EXPECT_EQ(chosen(saveQuestion(),
                     {type("street"), press(Qt::Key_Return), press(Qt::Key_Return), [] { dialog().reject(); }}),
              "");
}

TEST_F(FileDialogTest, SavingIntoTheFileNamedAtTheStartNeedsNoQuestion) {
    FileQuestion question = saveQuestion();
    question.initialName = fromQt(path("street.ies"));
    FileDialog saving(question, folder_.path(), {}, nullptr);
    later({press(Qt::Key_Return)});
    saving.exec();
    EXPECT_EQ(saving.chosenFile(), path("street.ies"));
    EXPECT_FALSE(saving.mayReplace());
}

TEST_F(FileDialogTest, AFolderThatIsNotThereIsComplainedAboutAsItStands) {
    QString complaint;
    bool isPlain = false;
    const QString file =
        chosen(saveQuestion(), {type("<b>no</b>/plan.ies"), press(Qt::Key_Return),
                                [&] {
                                    complaint = dialog().complaint();
                                    isPlain = dialog().findChild<QLabel*>("complaint")->textFormat() == Qt::PlainText;
                                },
                                [] { dialog().reject(); }});
    EXPECT_TRUE(complaint.contains(path("<b>no</b>").section('/', 0, -2)));
    EXPECT_TRUE(isPlain);
    EXPECT_EQ(file, "");
}

TEST_F(FileDialogTest, TheInitialNameStandsThere) {
    FileQuestion question;
    question.filters = {{L"DXF", L"*.dxf"}};
    question.forSaving = true;
    question.initialName = L"Drawing1.dxf";
    EXPECT_EQ(chosen(question, {press(Qt::Key_Return)}), path("Drawing1.dxf"));
}

TEST_F(FileDialogTest, TheReadOnlyBoxIsThereOnlyWhereItIsOffered) {
    FileQuestion question = webQuestion();
    const FileDialog without(question, folder_.path(), {}, nullptr);
    question.offersReadOnly = true;
    const FileDialog with(question, folder_.path(), {}, nullptr);
    EXPECT_EQ(without.findChild<QCheckBox*>("readonly"), nullptr);
    ASSERT_NE(with.findChild<QCheckBox*>("readonly"), nullptr);
    with.findChild<QCheckBox*>("readonly")->setChecked(true);
    EXPECT_TRUE(with.isReadOnly());
}

TEST_F(FileDialogTest, OnlyAQuestionWithPreviewsHasAPane) {
    FileQuestion question = webQuestion();
    question.previews = false;
    const FileDialog dialog(question, folder_.path(), {}, nullptr);
    EXPECT_EQ(dialog.preview(), nullptr);
}

TEST_F(FileDialogTest, LeavesThePlacesOfOtherProgramsAsTheyWere) {
    QList<QUrl> before = QFileDialog().sidebarUrls();
    { const FileDialog dialog(webQuestion(), folder_.path(), {{"here", folder_.path()}}, nullptr); }
    EXPECT_EQ(QFileDialog().sidebarUrls(), before);
}

// Through the port that commands use.
class ChooseFileTest : public FileDialogTest {
protected:
    FileAnswer answered(const FileQuestion& question, const std::vector<Step>& steps) {
        later(steps);
        return Dialogs(session_.session(), window_).chooseFile(question);
    }

    TestSession session_;
    QWidget window_;
};

TEST_F(ChooseFileTest, AnswersTheWholePath) {
    EXPECT_EQ(answered(webQuestion(), {type(path("street.ies")), press(Qt::Key_Return)}).file,
              fromQt(path("street.ies")));
}

TEST_F(ChooseFileTest, CancelAnswersNoFile) {
    const FileAnswer answer = answered(webQuestion(), {press(Qt::Key_Escape)});
    EXPECT_FALSE(answer.file.has_value());
    EXPECT_FALSE(answer.inputEnded);
}

TEST_F(ChooseFileTest, RemembersTheFolderOfTheKind) {
    (void)answered(webQuestion(), {type(path("street.ies")), press(Qt::Key_Return)});

    QString started;
    (void)answered(webQuestion(), {[&] { started = dialog().directory().path(); }, [] { dialog().reject(); }});

    EXPECT_EQ(started, folder_.path());
    EXPECT_EQ(session_.session().settings().get(L"Folders", L"ies"), fromQt(folder_.path()));
}

TEST_F(ChooseFileTest, StartsInTheDrawingsFolderAtFirst) {
    session_.session().documents().current()->setPath(path("plan.dxf").toStdString());
    EXPECT_EQ(startFolder(session_.session(), webQuestion()), folder_.path());
}

TEST_F(ChooseFileTest, OffersTheDrawingsFolderAndHome) {
    session_.session().documents().current()->setPath(path("plan.dxf").toStdString());
    const std::vector<FilePlace> places = filePlaces(session_.session());
    EXPECT_EQ(places.front().folder, folder_.path());
    EXPECT_EQ(places.back().folder, QDir::homePath());
}

class PreviewTest : public FileDialogTest {};

TEST_F(PreviewTest, AWebShowsItsCurveAndWhatTellsItApart) {
    WebPreview preview;
    preview.showFile(path("street.ies"));
    EXPECT_EQ(preview.polar().diagram().curves.size(), 2U);
    EXPECT_THAT(preview.text().toStdString(), HasSubstr("Quor samples"));
    EXPECT_THAT(preview.text().toStdString(), HasSubstr("lm"));
    EXPECT_THAT(preview.text().toStdString(), HasSubstr("64 W"));
}

TEST_F(PreviewTest, ABrokenWebShowsLineAndReason) {
    put("broken.ies", QString(QUOR_TEST_DATA) + "/ies/derived/m02_truncated_candela.ies");
    WebPreview preview;
    preview.showFile(path("broken.ies"));
    EXPECT_TRUE(preview.polar().diagram().curves.empty());
    EXPECT_TRUE(preview.text().contains("broken.ies"));
    EXPECT_TRUE(preview.text().contains(QRegularExpression("第 \\d+ 行")));
}

TEST_F(PreviewTest, ALargeWebIsReadBesideThePerson) {
    QFile street(path("street.ies"));
    ASSERT_TRUE(street.open(QIODevice::Append));
    street.write(QByteArray(2 << 20, ' '));
    street.close();
    WebPreview preview;

    preview.showFile(path("street.ies"));

    EXPECT_TRUE(preview.text().contains("正在读取"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return preview.text().contains("64 W"); }));
}

TEST_F(PreviewTest, ADrawingShowsItsVersionAndEntities) {
    put("minimal.dxf", QString(QUOR_TEST_DATA) + "/dxf/ez_Minimal_DXF_AC1021.dxf");
    PreviewPane pane;
    pane.showFile(path("minimal.dxf"));
    pane.showNow();
    EXPECT_TRUE(pane.text().contains("AC1021"));
}

TEST_F(PreviewTest, AFolderShowsNothing) {
    PreviewPane pane;
    pane.showFile(folder_.path());
    pane.showNow();
    EXPECT_TRUE(pane.text().contains("选择一个文件"));
}

TEST_F(PreviewTest, ShowsTheFileThatIsNamedAtTheStart) {
    FileQuestion question = webQuestion();
    question.initialName = fromQt(path("street.ies"));
    const FileDialog dialog(question, folder_.path(), {}, nullptr);
    dialog.preview()->showNow();
    EXPECT_TRUE(dialog.preview()->text().contains("64 W"));
}

TEST_F(PreviewTest, FollowsTheCursorInTheList) {
    QString text;
    (void)chosen(webQuestion(),
                 {untilListed("street.ies"), [] { dialog().findChild<QAbstractItemView*>("treeView")->setFocus(); },
                  press(Qt::Key_Home), press(Qt::Key_Down), press(Qt::Key_Up),
                  until([] { return dialog().preview()->text().contains("64 W"); }),
                  [&] { text = dialog().preview()->text(); }, [] { dialog().reject(); }});
    EXPECT_TRUE(text.contains("64 W"));
}

} // namespace
} // namespace quor::desktop::test
