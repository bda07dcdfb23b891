#include "host/props/drawing_settings.h"

#include "host/document.h"
#include "host/props/change.h"
#include "host/props/layer_rows.h"
#include "host/session.h"
#include "host/sys/case_fold.h"
#include "host/sys/system_variables.h"
#include "host/sys/trim.h"
#include "host/sys/visible_text.h"
#include "host/texts/properties.h"

#include <algorithm>

namespace quor::props {

namespace {

// A system variable with a word for each of its values, from 0 on.
struct Setting {
    std::string_view id;
    const wchar_t* variable;
    const Text& label;
    Editor editor;
    std::span<const Text> choices; // none: the layers
};

constexpr Setting kSettings[] = {
    {"drawing.lightingunits", L"LIGHTINGUNITS", texts::kRowLightingUnits, Editor::Choice, texts::kLightingUnits},
    {"drawing.defaultlighting", L"DEFAULTLIGHTING", texts::kRowDefaultLighting, Editor::YesNo, texts::kOffOn},
    {"drawing.layer", L"CLAYER", texts::kRowCurrentLayer, Editor::Choice, {}},
    {"drawing.insertionunits", L"INSUNITS", texts::kRowInsertionUnits, Editor::Choice, texts::kInsertionUnits},
};

std::vector<ZrString> wordsOf(Session& session, const Setting& setting) {
    std::vector<ZrString> words;
    for (const Text& word : setting.choices)
        words.emplace_back(word.get());
    if (setting.choices.empty())
        for (const LayerRow& layer : layersOf(session.documents().current()->drawing()))
            words.push_back(layer.name);
    return words;
}

ZrString valueOf(Session& session, const Setting& setting) {
    if (setting.choices.empty())
        return visibleText(session.variables().text(setting.variable).value_or(ZrString()));
    const auto place = static_cast<std::size_t>(session.variables().number(setting.variable));
    return place < setting.choices.size() ? ZrString(setting.choices[place].get()) : std::to_wstring(place);
}

Row rowOf(Session& session, const Setting& setting) {
    Row row{.id = setting.id, .group = Group::Drawing, .label = setting.label.get(), .editor = setting.editor};
    row.input = row.text = valueOf(session, setting);
    row.choices = wordsOf(session, setting);
    return row;
}

Refusal write(Session& session, const Setting& setting, const std::vector<ZrString>& words, std::size_t place) {
    if (setting.choices.empty()) {
        db::Database& drawing = session.documents().current()->drawing();
        return makeLayerCurrent(drawing, findLayer(drawing, words[place]));
    }
    const sys::SetResult result = session.variables().set(setting.variable, static_cast<short>(place));
    return result == sys::SetResult::Ok ? Refusal() : session.variables().refusal(setting.variable, result);
}

ZrString listed(const std::vector<ZrString>& words) {
    ZrString text;
    for (const ZrString& word : words)
        text += (text.empty() ? L"" : L" / ") + word;
    return text;
}

} // namespace

std::vector<Row> drawingRows(Session& session) {
    std::vector<Row> rows;
    for (const Setting& setting : kSettings)
        rows.push_back(rowOf(session, setting));
    return rows;
}

Refusal setDrawingRow(Session& session, std::string_view id, const ZrString& typed) {
    const auto* const setting = std::ranges::find(kSettings, id, &Setting::id);
    if (setting == std::end(kSettings))
        return texts::kRowIsGone.get();
    const std::vector<ZrString> words = wordsOf(session, *setting);
    const auto word =
        std::ranges::find_if(words, [&](const ZrString& each) { return equalFolded(each, trimmed(typed)); });
    if (word == words.end())
        return setting->choices.empty() ? fill(texts::kNoLayerToChoose, visibleText(typed))
                                        : fill(texts::kNeedsChoice, visibleText(typed), listed(words));
    if (equalFolded(*word, valueOf(session, *setting)))
        return std::nullopt;
    return makeChange(session, L"PROPERTIES",
                      [&] { return write(session, *setting, words, static_cast<std::size_t>(word - words.begin())); });
}

} // namespace quor::props
