#include "storage/project.h"

#include "basic/conversion.h"
#include "diagnostics/pending_error.h"

namespace rf {

namespace {

constexpr TextView separator = u";";

} // namespace

Text cProject::ToString() const { return ProjectName + Text{separator} + decimal(ProjectColor); }

void cProject::FromString(const Regional& regional, TextView StringToParse)
{
    const auto pieces = splitViews(StringToParse, separator);
    ProjectName = pieces.empty() ? TextView{} : pieces[0];
    // One damaged colour must not lose the projects behind it.
    PendingError errors;
    ProjectColor = pieces.size() < 2 ? 0 : errors.attempt([&] { return toLong(regional, pieces[1]); });
}

} // namespace rf
