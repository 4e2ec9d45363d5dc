#include "storage/projects.h"

#include "app/session.h"
#include "basic/conversion.h"
#include "storage/list_filling.h"

#include <algorithm>

namespace rf {

namespace {

constexpr std::int32_t black = 0;
constexpr std::int32_t white = 0xFFFFFF;

constexpr std::int32_t rgb(std::int32_t red, std::int32_t green, std::int32_t blue)
{
    return red + 256 * green + 65536 * blue;
}

constexpr std::array palette{
    rgb(255, 128, 0),
    rgb(255, 255, 0),
    rgb(0, 255, 0),
    rgb(255, 0, 255),
    rgb(255, 128, 128),
    rgb(255, 255, 128),
    rgb(128, 255, 128),
    rgb(128, 128, 255),
    rgb(255, 128, 255),
    rgb(192, 0, 0),
    rgb(192, 192, 0),
    rgb(0, 192, 0),
    rgb(0, 192, 192),
    rgb(0, 0, 192),
    rgb(192, 0, 192),
    rgb(128, 0, 0),
    rgb(128, 128, 0),
    rgb(0, 128, 0),
    rgb(0, 128, 128),
    rgb(0, 0, 128),
};
static_assert(palette.size() + 1 == cProjects::colorSlots);

std::int32_t randomShade(const RandomNumbers& randomNumbers) { return toLong(randomNumbers() * 255); }

} // namespace

cProjects::cProjects(Session& session)
    : session_(&session)
    , names_(session.scripting.fncCreateDic())
{
    subSetupColors();
}

void cProjects::subSetupColors() { std::ranges::copy(palette, FirstColors.begin()); }

void cProjects::FromString(TextView StringToParse)
{
    for (const TextView line : splitViews(StringToParse, lineBreak)) {
        // The text form ends with a line break, behind which there is no project.
        if (line.empty())
            continue;
        cProject project;
        project.FromString(session_->services.regional, line);
        if (names_.exists(project.ProjectName))
            continue;
        if (project.ProjectColor == white || project.ProjectColor == black)
            project.ProjectColor = GetNextColor();
        names_.add(project.ProjectName, project.ProjectName);
        projects_.push_back(std::move(project));
    }
}

Text cProjects::ToString() const
{
    Text text;
    for (const cProject& project : projects_)
        text += project.ToString() + Text{lineBreak};
    return text;
}

std::int32_t cProjects::GetNextColor() const
{
    if (projects_.size() < FirstColors.size())
        return FirstColors[projects_.size()];
    // In this order: a known source of numbers gives known colours.
    const auto red = randomShade(session_->randomNumbers);
    const auto green = randomShade(session_->randomNumbers);
    const auto blue = randomShade(session_->randomNumbers);
    return rgb(red, green, blue);
}

void cProjects::AddToComboOrList(ui::ListControl& cmbCombo) const
{
    std::vector<Text> names;
    names.reserve(projects_.size());
    for (const cProject& project : projects_)
        names.push_back(project.ProjectName);
    fillList(cmbCombo, names);
}

std::optional<cProject> cProjects::RandomItem() const
{
    if (projects_.empty())
        return std::nullopt;
    return projects_[randomPosition(session_->randomNumbers, projects_.size())];
}

} // namespace rf
