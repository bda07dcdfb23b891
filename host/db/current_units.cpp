#include "host/db/current_units.h"

#include "host/document.h"
#include "host/session.h"
#include "host/sys/system_variables.h"

#include <cmath>

namespace quor::units {
namespace {

// A whole number of the drawing within the bounds of its variable, else what is usual.
int setting(const sys::SystemVariables& variables, const wchar_t* name, int usual) {
    const short value = variables.number(name, static_cast<short>(usual));
    const sys::VariableRow* row = variables.row(name);
    return value >= row->low && value <= row->high ? value : usual;
}

UnitSettings settingsOf(const sys::SystemVariables& variables) {
    const UnitSettings usual;
    UnitSettings found;
    found.lengthFormat = setting(variables, L"LUNITS", usual.lengthFormat);
    found.lengthPrecision = setting(variables, L"LUPREC", usual.lengthPrecision);
    found.angleFormat = setting(variables, L"AUNITS", usual.angleFormat);
    found.anglePrecision = setting(variables, L"AUPREC", usual.anglePrecision);
    found.clockwise = setting(variables, L"ANGDIR", 0) == 1;
    found.unitMode = setting(variables, L"UNITMODE", usual.unitMode);
    const auto base = variables.get(L"ANGBASE");
    const auto* radians = base ? std::get_if<double>(&*base) : nullptr;
    found.angleBase = radians != nullptr && std::isfinite(*radians) ? *radians : usual.angleBase;
    return found;
}

// The settings of the drawing that was asked last. Listens to that drawing, so that it knows when they are out of date.
class Cache final : public ZrDbDatabaseReactor {
public:
    const UnitSettings& of(ZrDbDatabase* database) {
        if (database != database_)
            listenTo(database);
        if (!valid_) {
            settings_ = database != nullptr ? settingsOf(Session::current().variables()) : UnitSettings();
            valid_ = true;
        }
        return settings_;
    }

    void headerSysVarChanged(const ZrDbDatabase&, const wchar_t*) override { valid_ = false; }
    void goodbye(const ZrDbDatabase&) override {
        database_ = nullptr;
        valid_ = false;
    }

private:
    void listenTo(ZrDbDatabase* database) {
        if (database_ != nullptr)
            database_->removeReactor(this);
        if (database != nullptr)
            database->addReactor(this);
        database_ = database;
        valid_ = false;
    }

    ZrDbDatabase* database_ = nullptr;
    UnitSettings settings_;
    bool valid_ = false;
};

} // namespace

const UnitSettings& currentUnits() {
    static Cache cache;
    Document* document = Session::exists() ? Session::current().documents().current() : nullptr;
    return cache.of(document != nullptr ? document->database() : nullptr);
}

} // namespace quor::units
