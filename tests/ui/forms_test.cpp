#include "ui/form.h"

#include "basic/runtime_error.h"

#include <gtest/gtest.h>

namespace rf::ui {
namespace {

class NamedForm final : public Form {
public:
    explicit NamedForm(TextView name)
        : name_(name)
    {
    }
    [[nodiscard]] TextView name() const override { return name_; }
    void load() override
    {
        ++loads;
        if (failsToLoad)
            throw RuntimeError{error_number::invalidCall};
    }
    [[nodiscard]] bool queryUnload() override { return !refuses; }
    void unload() override { ++unloads; }

    int loads = 0;
    int unloads = 0;
    bool refuses = false;
    bool failsToLoad = false;

private:
    TextView name_;
};

TEST(Forms, LoadAFormOnce)
{
    Forms forms;
    const auto form = std::make_shared<NamedForm>(u"frmA");
    forms.load(form);
    EXPECT_EQ(form->loads, 1);
    EXPECT_EQ(forms.count(), 1U);
    EXPECT_EQ(forms.find(u"frmA"), form);
    EXPECT_EQ(forms.find(u"frmB"), nullptr);
}

TEST(Forms, DoNotCountAFormWhoseLoadingFails)
{
    Forms forms;
    const auto form = std::make_shared<NamedForm>(u"frmA");
    form->failsToLoad = true;
    EXPECT_THROW(forms.load(form), RuntimeError);
    EXPECT_EQ(forms.count(), 0U);
}

TEST(Forms, KeepAFormThatRefusesToUnload)
{
    Forms forms;
    const auto form = std::make_shared<NamedForm>(u"frmA");
    form->refuses = true;
    forms.load(form);
    forms.unload(0);
    EXPECT_EQ(forms.count(), 1U);
    EXPECT_EQ(form->unloads, 0);
}

TEST(Forms, UnloadByPositionAndByName)
{
    Forms forms;
    const auto first = std::make_shared<NamedForm>(u"frmA");
    const auto second = std::make_shared<NamedForm>(u"frmB");
    forms.load(first);
    forms.load(second);
    forms.unload(0);
    EXPECT_EQ(first->unloads, 1);
    forms.unload(u"frmB");
    EXPECT_EQ(second->unloads, 1);
    forms.unload(u"frmB");
    EXPECT_EQ(forms.count(), 0U);
}

TEST(Forms, UnloadThatVeryFormOfSeveralWithOneName)
{
    Forms forms;
    const auto first = std::make_shared<NamedForm>(u"frmA");
    const auto second = std::make_shared<NamedForm>(u"frmA");
    forms.load(first);
    forms.load(second);
    forms.unload(*second);
    EXPECT_EQ(first->unloads, 0);
    EXPECT_EQ(second->unloads, 1);
    forms.unload(*second);
    EXPECT_EQ(second->unloads, 1);
    EXPECT_EQ(forms.find(u"frmA"), first);
}

} // namespace
} // namespace rf::ui
