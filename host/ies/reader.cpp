// The numbers of a web file and the checks on them.
#include "host/ies/reader.h"

#include "host/ies/bytes.h"
#include "host/ies/label.h"
#include "host/ies/symmetry.h"
#include "host/ies/tokens.h"

#include <cmath>

namespace quor::ies {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The format has 0 to 90 or 0 to 180; nothing depends on them here.
constexpr AngleRange kTiltRange{-180, 180};

// Reads the numbers in their order. Every step answers false when it finds an error, which is then in `error_`.
class Reader {
public:
    explicit Reader(Label&& label) : tokens_(label.numbers, label.line), token_{{}, label.line} {
        web_.edition = label.edition;
        web_.keywords = std::move(label.keywords);
        web_.warnings = std::move(label.warnings);
        includesTilt_ = label.includesTilt;
    }

    Result<PhotometricWeb, Error> read() {
        if (!(readTilt() && readHeader() && readAngles() && readCandela()))
            return fail(std::move(error_));
        finishAngles();
        if (tokens_.next(token_))
            warnOfRest();
        return std::move(web_);
    }

private:
    bool readTilt() {
        if (!includesTilt_)
            return true;
        Tilt& tilt = web_.tilt.emplace();
        std::size_t size = 0;
        return choice(Error::Kind::BadTilt, 3, tilt.geometry) && count(size) && angles(size, kTiltRange, tilt.angles) &&
               numbers(size, tilt.factors);
    }

    bool readHeader() {
        int photometry = 0;
        int unit = 0;
        const bool read = number(web_.lamps) && number(web_.lumensPerLamp) && factor(multiplier_) && count(rows_) &&
                          count(planes_) && choice(Error::Kind::BadType, 3, photometry) &&
                          choice(Error::Kind::BadUnit, 2, unit) && number(web_.width) && number(web_.length) &&
                          number(web_.height) && factor(web_.ballastFactor) && thirdFactor() && number(web_.watts);
        web_.photometry = static_cast<Photometry>(photometry);
        web_.inFeet = unit == 1;
        return read;
    }

    // From 1995 on it means something else, and any number may stand there.
    bool thirdFactor() {
        const bool counts = web_.edition == Edition::Lm1986 || web_.edition == Edition::Lm1991;
        if (!(counts ? factor(web_.thirdFactor) : number(web_.thirdFactor)))
            return false;
        multiplier_ *= web_.ballastFactor * (counts ? web_.thirdFactor : 1);
        return true;
    }

    bool readAngles() {
        if (!angles(rows_, verticalRange(web_.photometry), web_.vertical))
            return false;
        lineOfRows_ = token_.line;
        if (!angles(planes_, horizontalRange(web_.photometry), web_.horizontal))
            return false;
        web_.symmetry = symmetryOf(web_);
        lineOfPlanes_ = token_.line;
        return true;
    }

    bool readCandela() {
        // No memory ahead of the numbers: the counts may claim anything.
        const std::size_t size = rows_ * planes_;
        while (web_.candela.size() < size) {
            double value = 0;
            if (!number(value))
                return false;
            if (value < 0)
                return refuse(Error::Kind::NegativeIntensity);
            value *= multiplier_;
            if (!(value <= kMostCandela))
                return refuse(Error::Kind::BadNumber);
            web_.candela.push_back(value);
        }
        return true;
    }

    void finishAngles() {
        if (lacksRows(web_))
            web_.warnings.push_back({Warning::Kind::MissingRows, lineOfRows_});
        if (lacksLastPlane(web_)) {
            web_.horizontal.push_back(web_.horizontal.front() + 360);
            for (std::size_t row = 0; row < rows_; ++row)
                web_.candela.push_back(web_.at(0, row));
            web_.warnings.push_back({Warning::Kind::Missing360, lineOfPlanes_});
        }
        if (lacksPlanes(web_))
            web_.warnings.push_back({Warning::Kind::MissingPlanes, lineOfPlanes_});
        if (web_.symmetry == Symmetry::Axial && web_.horizontal.front() != 0)
            web_.warnings.push_back({Warning::Kind::OnePlaneNotAtZero, lineOfPlanes_});
    }

    // Numbers that are left over are the end of the data rather than a remark. `token_` is the first one of them.
    void warnOfRest() {
        Warning warning{Warning::Kind::TrailingText, token_.line};
        bool more = true;
        while (more && numberOf(token_.text)) {
            warning.kind = Warning::Kind::SurplusNumbers;
            ++warning.number;
            more = tokens_.next(token_);
        }
        web_.warnings.push_back(warning);
    }

    bool number(double& value) {
        if (!tokens_.next(token_)) {
            // In the line of the last number that is there.
            error_ = {Error::Kind::MissingNumber, token_.line, 0, {}};
            return false;
        }
        const std::optional<double> read = numberOf(token_.text);
        // A negative zero would show its sign.
        value = read.value_or(0) + 0.0;
        return read || refuse(Error::Kind::BadNumber);
    }

    bool numbers(std::size_t size, std::vector<double>& values) {
        double value = 0;
        while (values.size() < size) {
            if (!number(value))
                return false;
            values.push_back(value);
        }
        return true;
    }

    // What all intensities are multiplied by.
    bool factor(double& value) { return number(value) && (value >= 0 || refuse(Error::Kind::NegativeIntensity)); }

    bool count(std::size_t& value) {
        double read = 0;
        if (!number(read))
            return false;
        if (!(read >= 1 && read <= kMostAngles) || read != std::floor(read))
            return refuse(Error::Kind::BadCount);
        value = static_cast<std::size_t>(read);
        return true;
    }

    // A whole number from 1 to `last`.
    bool choice(Error::Kind kind, int last, int& value) {
        double read = 0;
        if (!number(read))
            return false;
        if (!(read >= 1 && read <= last) || read != std::floor(read))
            return refuse(kind);
        value = static_cast<int>(read);
        return true;
    }

    bool angles(std::size_t size, AngleRange range, std::vector<double>& values) {
        double angle = 0;
        while (values.size() < size) {
            if (!number(angle))
                return false;
            if (!range.holds(angle))
                return refuse(Error::Kind::AnglesOutOfRange);
            if (!values.empty() && angle <= values.back())
                return refuse(Error::Kind::AnglesNotIncreasing);
            values.push_back(angle);
        }
        return true;
    }

    bool refuse(Error::Kind kind) {
        error_ = {kind, token_.line, 0, excerptOf(token_.text)};
        return false;
    }

    Tokens tokens_;
    Token token_;
    PhotometricWeb web_;
    Error error_;
    bool includesTilt_ = false;
    double multiplier_ = 1;
    std::size_t rows_ = 0;
    std::size_t planes_ = 0;
    std::size_t lineOfRows_ = 0;
    std::size_t lineOfPlanes_ = 0;
};

} // namespace

Result<PhotometricWeb, Error> readWeb(std::string_view bytes) {
    Error error;
    error.kind = Error::Kind::TooLarge;
    if (bytes.size() > kMostBytes)
        return fail(std::move(error));
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    Result<Label, Error> label = readLabel(bytes);
    if (!label.ok())
        return fail(std::move(label).error());
    return Reader(std::move(label).value()).read();
}

} // namespace quor::ies
