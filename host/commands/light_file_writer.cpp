#include "host/commands/light_file_writer.h"

#include "host/commands/ask.h"
#include "host/commands/listing.h"
#include "host/commands/progress.h"
#include "host/document.h"
#include "host/session.h"
#include "host/sys/system_variables.h"
#include "host/texts/light_table.h"

namespace quor::commands {

namespace {

DrawingFacts drawingFacts(Session& session) {
    const Document& document = *session.documents().current();
    DrawingFacts facts;
    facts.name = document.path().empty() ? document.fileName() : textOf(document.path());
    facts.lengthUnit = drawingUnit();
    facts.insertionUnits = session.variables().number(L"INSUNITS");
    facts.lightingUnits = session.variables().number(L"LIGHTINGUNITS");
    return facts;
}

// The text of the file, piece by piece.
class LightFile {
public:
    LightFile(const DrawingFacts& drawing, const LightSelection& selection, const LightFileFormat& format,
              Progress& progress)
        : lights_(selection), format_(format), lightingUnits_(drawing.lightingUnits), progress_(progress),
          piece_(format.begin(drawing)) {}

    // Empty behind the end.
    std::string_view next() {
        if (began_)
            piece_.clear();
        began_ = true;
        while (!ended_ && piece_.size() < kPiece)
            addLightOrEnd();
        return piece_;
    }
    [[nodiscard]] const WrittenLights& written() const { return written_; }

private:
    static constexpr std::size_t kPiece = 1 << 16;

    void addLightOrEnd() {
        const std::optional<LightFacts> light = lights_.next();
        if (!light) {
            piece_ += format_.end;
            ended_ = true;
            return;
        }
        const FieldValues fields = fieldsOf(*light, lightingUnits_);
        format_.append(piece_, fields, written_.count == 0);
        ++written_.count;
        written_.formulas += looksLikeFormula(fields) ? 1 : 0;
        progress_.step();
    }

    LightReader lights_;
    const LightFileFormat& format_;
    int lightingUnits_;
    Progress& progress_;
    WrittenLights written_;
    std::string piece_;
    bool began_ = false;
    bool ended_ = false;
};

} // namespace

Result<WrittenLights, dxf::SaveError> writeLightFile(Session& session, const LightSelection& selection,
                                                     const LightFileFormat& format, const std::filesystem::path& path) {
    Progress progress(session.front(), fillShown(texts::kTableWriting, textOf(path.filename())), selection.count);
    LightFile file(drawingFacts(session), selection, format, progress);
    const auto saved = dxf::savePiecesAtomically(path, [&] { return file.next(); }, {.keepBackup = false});
    if (!saved)
        return fail(saved.error());
    return file.written();
}

} // namespace quor::commands
