// The forms in which the editor's tables are written out. They are the same on every machine.
#pragma once

#include <ostream>

#include "fields.h"
#include "session.h"

namespace ombrelia::scenario {

void dumpHeights(const Session& session, const Fields& none, std::ostream& out);
void dumpShadow(const Session& session, const Fields& none, std::ostream& out);

// fields: the name of a picture surface.
void dumpSurface(const Session& session, const Fields& fields, std::ostream& out);

void dumpButtons(const Session& session, const Fields& none, std::ostream& out);
void dumpSliders(const Session& session, const Fields& none, std::ostream& out);
void dumpColors(const Session& session, const Fields& none, std::ostream& out);
void dumpSettings(const Session& session, const Fields& none, std::ostream& out);
void dumpCalls(const Session& session, const Fields& none, std::ostream& out);
void dumpWorm(const Session& session, const Fields& none, std::ostream& out);

}  // namespace ombrelia::scenario
