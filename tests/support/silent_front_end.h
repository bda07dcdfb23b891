// A front end that shows nothing and has no person behind it.
#pragma once

#include "host/front.h"

namespace quor::test {

class SilentFrontEnd : public FrontEnd {
public:
    void print(std::wstring_view) override {}
    Answer ask(const Question&) override { return {}; }
    void echo(const Question&, std::wstring_view) override {}
    Answer drag(const Question&, const std::function<void(const ZrGePoint3d&)>&) override { return {}; }
    TaskDialogAnswer showTaskDialog(const CZrUiTaskDialog&) override { return {}; }
    FileAnswer chooseFile(const FileQuestion&) override { return {}; }
};

} // namespace quor::test
