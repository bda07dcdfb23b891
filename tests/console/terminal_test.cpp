// A person at a real terminal: quorc on the other end of a pseudo-terminal.
#include <csignal>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <poll.h>
#include <pty.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* kUp = "\x1b[A";
constexpr const char* kEsc = "\x1b";
constexpr const char* kCtrlC = "\x03";
constexpr const char* kCtrlD = "\x04";

class TerminalTest : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(home_);
        const winsize size = sizeOf(80);
        child_ = forkpty(&terminal_, nullptr, nullptr, &size);
        ASSERT_GE(child_, 0);
        if (child_ == 0)
            becomeQuorc();
    }
    void TearDown() override {
        if (child_ > 0)
            kill(child_, SIGKILL);
        if (child_ > 0 && !ended_)
            waitpid(child_, nullptr, 0);
        close(terminal_);
        fs::remove_all(home_);
    }

    static winsize sizeOf(unsigned short columns) {
        winsize size{};
        size.ws_row = 24;
        size.ws_col = columns;
        return size;
    }

    [[noreturn]] void becomeQuorc() const {
        setenv("HOME", home_.c_str(), 1);
        setenv("TERM", "xterm", 1);
        unsetenv("XDG_STATE_HOME");
        unsetenv("XDG_CONFIG_HOME");
        execl(QUOR_BUILD_DIR "/bin/quorc", "quorc", "--lang", "zh", static_cast<char*>(nullptr));
        _exit(127);
    }

    void type(const std::string& keys) { ASSERT_EQ(write(terminal_, keys.data(), keys.size()), ssize_t(keys.size())); }

    // Waits until the screen has shown the text after what was seen before.
    bool shows(const std::string& text) {
        while (screen_.find(text, seen_) == std::string::npos)
            if (!readMore())
                return false;
        seen_ = screen_.find(text, seen_) + text.size();
        return true;
    }

    bool readMore() {
        pollfd waiting{terminal_, POLLIN, 0};
        if (poll(&waiting, 1, 20000) <= 0)
            return false;
        char bytes[4096];
        const ssize_t count = read(terminal_, bytes, sizeof bytes);
        screen_.append(bytes, count > 0 ? static_cast<std::size_t>(count) : 0);
        return count > 0;
    }

    int exitStatus() {
        while (readMore())
            ;
        int status = -1;
        for (int tries = 0; !ended_ && tries < 500; ++tries) {
            ended_ = waitpid(child_, &status, WNOHANG) == child_;
            usleep(ended_ ? 0 : 10000);
        }
        return ended_ && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    fs::path home_ = fs::temp_directory_path() / ("quor-terminal-" + std::to_string(getpid()));
    pid_t child_ = -1;
    int terminal_ = -1;
    bool ended_ = false;
    std::string screen_;
    std::size_t seen_ = 0;
};

TEST_F(TerminalTest, TabCompletesACommandAndEnterRunsIt) {
    ASSERT_TRUE(shows("命令: "));
    type("LAYO\t\n");
    ASSERT_TRUE(shows("输入布局选项")) << screen_;
    type(kCtrlC);
    EXPECT_TRUE(shows("*取消*")) << screen_;
}

TEST_F(TerminalTest, TabListsWhatIsPossible) {
    ASSERT_TRUE(shows("命令: "));
    type("SAV\t\t");
    EXPECT_TRUE(shows("SAVEAS")) << screen_;
}

TEST_F(TerminalTest, ListOfTabStaysWholeBelowAQuestionOfTwoRows) {
    ASSERT_TRUE(shows("命令: "));
    type("POINTLIGHT\n2\n1,1,1\n");
    ASSERT_TRUE(shows("(X)] <退出>: ")) << screen_;
    type("s\t");
    EXPECT_TRUE(shows("s\r\nshadoW  Status\r\n输入要更改的选项")) << screen_;
    ASSERT_TRUE(shows("(X)] <退出>: s")) << screen_;
    type("\x01\t"); // at the start of the line, where all is possible
    EXPECT_TRUE(shows("shadoW\r\n输入要更改的选项")) << screen_;
}

TEST_F(TerminalTest, QuestionOfTwoRowsIsDrawnInItsPlaceOnANarrowerWindow) {
    ASSERT_TRUE(shows("命令: "));
    type("POINTLIGHT\n2\n1,1,1\n");
    ASSERT_TRUE(shows("(X)] <退出>: ")) << screen_;
    const winsize narrower = sizeOf(70);
    ASSERT_EQ(ioctl(terminal_, TIOCSWINSZ, &narrower), 0);
    EXPECT_TRUE(shows("\x1b[1A\r\x1b[J输入要更改的选项")) << screen_;
}

TEST_F(TerminalTest, LongLinesOfADialogGoOnBelowTheirFirstWord) {
    ASSERT_TRUE(shows("命令: "));
    type("POINTLIGHT\n");
    EXPECT_TRUE(shows("\r\n  1. 关闭默认光源")) << screen_;
    EXPECT_TRUE(shows("\r\n     添加用户光源时")) << screen_;
    EXPECT_TRUE(shows("\r\n       ")) << screen_;
}

TEST_F(TerminalTest, CtrlCCancelsACommandAndTheSessionGoesOn) {
    ASSERT_TRUE(shows("命令: "));
    type("LINE 0,0\n");
    ASSERT_TRUE(shows("指定下一点")) << screen_;
    type(kCtrlC);
    ASSERT_TRUE(shows("命令: ")) << screen_;
    type("NOSUCH\n");
    EXPECT_TRUE(shows("未知命令“NOSUCH”")) << screen_;
}

TEST_F(TerminalTest, EscKeyCancelsACommandAndTheSessionGoesOn) {
    ASSERT_TRUE(shows("命令: "));
    type("LINE 0,0\n");
    ASSERT_TRUE(shows("指定下一点")) << screen_;
    type("1,");
    type(kEsc);
    ASSERT_TRUE(shows("*取消*")) << screen_;
    ASSERT_TRUE(shows("命令: ")) << screen_;
    type("NOSUCH\n");
    EXPECT_TRUE(shows("未知命令“NOSUCH”")) << screen_;
}

TEST_F(TerminalTest, LeftArrowMovesTheCaretInsteadOfCancelling) {
    ASSERT_TRUE(shows("命令: "));
    type("NSUCH\x1b[D\x1b[D\x1b[D\x1b[DO\n");
    EXPECT_TRUE(shows("未知命令“NOSUCH”")) << screen_;
}

TEST_F(TerminalTest, UpArrowBringsBackTheLastLine) {
    ASSERT_TRUE(shows("命令: "));
    type("不存在\n");
    ASSERT_TRUE(shows("未知命令“不存在”")) << screen_;
    ASSERT_TRUE(shows("命令: "));
    type(std::string(kUp) + "\n");
    EXPECT_TRUE(shows("未知命令“不存在”")) << screen_;

    std::ifstream file(home_ / ".local/state/quor/history");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "不存在\n");
}

TEST_F(TerminalTest, CtrlDEndsAnUnchangedDrawingAtOnce) {
    ASSERT_TRUE(shows("命令: "));
    type(kCtrlD);
    EXPECT_EQ(exitStatus(), 0) << screen_;
}

TEST_F(TerminalTest, CtrlDWithUnsavedChangesWarnsOnce) {
    ASSERT_TRUE(shows("命令: "));
    type("LINE 0,0 1,1\n");
    ASSERT_TRUE(shows("1,1\r\n指定下一点或 [放弃(U)]: ")) << screen_;
    type("\n");
    ASSERT_TRUE(shows("命令: ")) << screen_;
    type(kCtrlD);
    ASSERT_TRUE(shows("未保存的更改")) << screen_;
    ASSERT_TRUE(shows("命令: ")) << screen_;
    type(kCtrlD);
    EXPECT_EQ(exitStatus(), 0) << screen_;
}

TEST_F(TerminalTest, CtrlDWhileABlockIsEditedSaysHowItIsSaved) {
    ASSERT_TRUE(shows("命令: "));
    type("OPEN " QUOR_TEST_DATA "/dxf/own/luminaires.dxf\nREFEDIT #60\n\n");
    ASSERT_TRUE(shows("正在编辑块")) << screen_;
    ASSERT_TRUE(shows("命令: ")) << screen_;
    type(kCtrlD);
    EXPECT_TRUE(shows("用 REFCLOSE 结束编辑")) << screen_;
}

} // namespace
