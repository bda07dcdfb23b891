// Script files: their encoding, and scripts that run scripts.
#include "host/ed/script_source.h"

#include "host/ed/script_run.h"
#include "host/sys/utf8.h"
#include "sdk/rx/result_codes.h"
#include "tests/support/test_session.h"

#include <fstream>
#include <gtest/gtest.h>

using namespace quor;
using namespace quor::ed;

namespace {

class Scripts : public testing::Test {
protected:
    Scripts() {
        test_.addCommand(L"COUNT", [this] { return ++counted_, RTNORM; });
        test_.addCommand(L"UPTO", [this] { return ++counted_ < 500 ? RTNORM : RTERROR; });
    }

    std::filesystem::path write(const std::string& name, const std::string& bytes) {
        std::ofstream(path(name), std::ios::binary) << bytes;
        return path(name);
    }
    [[nodiscard]] std::string path(const std::string& name) const { return (test_.folder() / name).string(); }
    [[nodiscard]] std::string call(const std::string& name) const { return "SCRIPT\n" + path(name) + "\n"; }
    [[nodiscard]] ZrString refusal(const std::filesystem::path& script) const {
        const auto source = ScriptSource::open(script);
        return source ? L"" : source.error();
    }
    ScriptOutcome run(const std::string& name) {
        EXPECT_FALSE(test_.session().input().pushScript(ScriptSource::open(path(name)).value()));
        return runSources(test_.session(), false);
    }

    test::TestSession test_;
    int counted_ = 0;
};

TEST_F(Scripts, TextInAnotherEncodingIsRefusedWithItsLine) {
    const auto file = write("gbk.scr", "COUNT\r\nCOUNT\rTEXT \xB5\xC6\n");
    EXPECT_EQ(refusal(file), L"脚本文件“" + fromUtf8(file.string()) +
                                 L"”第 3 行不是有效的 UTF-8 文字。请把它另存为 UTF-8 编码后再执行。");
}

TEST_F(Scripts, TextOfTwoByteCharactersIsRefusedWithAndWithoutItsMark) {
    using namespace std::string_literals;
    EXPECT_NE(refusal(write("marked.scr", "\xFF\xFEO\0K\0"s)), L"");
    EXPECT_NE(refusal(write("bare.scr", "O\0K\0\n\0"s)), L"");
}

TEST_F(Scripts, Utf8WithAndWithoutItsMarkIsTaken) {
    EXPECT_EQ(refusal(write("marked.scr", "\xEF\xBB\xBF; 灯\n")), L"");
    EXPECT_EQ(refusal(write("bare.scr", "; 灯😀\n")), L"");
    EXPECT_EQ(refusal(write("empty.scr", "")), L"");
}

TEST_F(Scripts, FolderOrFileThatCannotBeReadIsRefusedWithTheReason) {
    std::filesystem::create_symlink("/proc/self/mem", path("odd.scr"));
    const ZrString folder = fromUtf8(test_.folder().native());
    EXPECT_EQ(refusal(test_.folder()), L"“" + folder + L"”是文件夹，不是脚本文件。");
    EXPECT_EQ(refusal(path("odd.scr")),
              L"无法读取脚本文件“" + folder + L"/odd.scr”: 读写设备时出错。请检查路径和权限。");
    EXPECT_EQ(refusal(path("none.scr")),
              L"无法读取脚本文件“" + folder + L"/none.scr”: 文件或文件夹不存在。请检查路径和权限。");
}

TEST_F(Scripts, CommandScriptFailsForTextInAnotherEncoding) {
    write("gbk.scr", "\xB5\xC6\n");
    EXPECT_EQ(test_.run({L"SCRIPT", fromUtf8(path("gbk.scr"))}).kind, Verdict::Kind::Failed);
    EXPECT_TRUE(test_.front().shows(L"第 1 行不是有效的 UTF-8 文字"));
}

TEST_F(Scripts, ScriptThatRunsItselfWithLinesLeftIsRefused) {
    write("self.scr", "COUNT\n" + call("self.scr") + "COUNT\n");
    const ScriptOutcome outcome = run("self.scr");
    ASSERT_TRUE(outcome.first);
    EXPECT_EQ(outcome.first->verdict.command, L"SCRIPT");
    EXPECT_EQ(outcome.first->origin.line, 2U);
    EXPECT_EQ(counted_, 1);
    EXPECT_TRUE(test_.front().shows(L"self.scr”正在执行"));
}

TEST_F(Scripts, TwoScriptsThatRunEachOtherWithLinesLeftAreRefused) {
    write("a.scr", "COUNT\n" + call("b.scr") + "COUNT\n");
    write("b.scr", "COUNT\n" + call("a.scr") + "COUNT\n");
    EXPECT_EQ(run("a.scr").failures, 1U);
    EXPECT_EQ(counted_, 2);
}

TEST_F(Scripts, ScriptWhoseLastCommandStartsItAnewRunsOn) {
    write("loop.scr", "UPTO\n" + call("loop.scr") + "; the end\n");
    EXPECT_EQ(run("loop.scr").first->verdict.command, L"UPTO");
    EXPECT_EQ(counted_, 500);
}

TEST_F(Scripts, AHundredScriptsMayWaitForEachOtherAndNoMore) {
    write("s99.scr", "COUNT\n");
    for (int i = 98; i >= 0; --i)
        write("s" + std::to_string(i) + ".scr", call("s" + std::to_string(i + 1) + ".scr") + "COUNT\n");
    EXPECT_EQ(run("s0.scr").failures, 0U);
    EXPECT_EQ(counted_, 100);

    write("s99.scr", call("s100.scr") + "COUNT\n");
    write("s100.scr", "COUNT\n");
    EXPECT_EQ(run("s0.scr").failures, 1U);
    EXPECT_EQ(counted_, 100);
    EXPECT_TRUE(test_.front().shows(L"脚本嵌套超过 100 层"));
}

} // namespace
