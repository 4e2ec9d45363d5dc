#include "storage/resource_description.h"

#include "storage/storage_fixture.h"

#include <algorithm>

namespace rf {
namespace {

using test::Fault;
using test::ProgramEnded;

/// A description that is loaded and saved while the host fails, or somebody else deletes it, at one of the calls.
class ResourceDescriptionUnderFaults : public test::StorageTest {
protected:
    ResourceDescriptionUnderFaults()
        : deletion([this] { deletePosts(); })
    {
        session.language.loadQuietly();
    }

    [[nodiscard]] std::vector<host::ItemRecord> posts() const
    {
        std::vector<host::ItemRecord> found;
        for (const auto id : store->withSubject(rootId, u"Room 1"))
            found.push_back(*store->read(id));
        return found;
    }
    void deletePosts() const
    {
        for (const auto& post : posts())
            store->remove(post.id);
    }
    /// Whether there is a post with that text and that number of seats.
    [[nodiscard]] bool isStored(TextView html, double seats) const
    {
        const auto found = posts();
        const auto has = [&](TextView name, const automation::Variant& value) {
            return std::ranges::any_of(found.front().userProperties,
                [&](const auto& property) { return property.name == name && property.value == value; });
        };
        return !found.empty() && has(u"strHTMLDesc0", html) && has(u"intSeats", seats);
    }

    static void write(cResourceDescription& description, TextView html, std::int16_t seats)
    {
        description.setResourceDescHTML(html);
        description.intSeats = seats;
        description.SaveResourceDesc();
    }
    /// What the next user loads. There is one description then.
    [[nodiscard]] Text loadedNext()
    {
        cResourceDescription description{session};
        description.setResourceName(u"Room 1");
        EXPECT_EQ(posts().size(), 1U);
        return description.ResourceDescHTML();
    }

    /// Runs a step for each call of the host that it makes behind `arm()`, in a program of its own; that call fails, or
    /// `instead` happens before it.
    template <class Step, class Check>
    void atEveryUse(const std::function<void()>& instead, Step&& step, Check&& check)
    {
        for (int use = 1;; ++use) {
            SCOPED_TRACE("at use " + std::to_string(use));
            deletePosts();
            cResourceDescription old{session};
            old.setResourceName(u"Room 1");
            write(old, u"old", 8);
            toolkit.messages.clear();
            const auto struck = std::make_shared<Fault>(Fault{.failingUse = use, .instead = instead});
            Session program{services()};
            program.language.loadQuietly();
            program.ouaApp = session.ouaApp;
            program.objRootFolder = session.objRootFolder;
            cResourceDescription description{program};
            try {
                step(description, [&] {
                    program.objRootFolder
                        = outlook::Folder{test::FaultyDispatch::wrap(session.objRootFolder.object(), struck)};
                });
            } catch (const ProgramEnded&) {
                EXPECT_EQ(toolkit.messages.size(), 1U) << "the program ends with a word";
            }
            if (struck->uses < use) {
                EXPECT_GT(use, 5) << "the step has to use the host";
                return;
            }
            check();
        }
    }

    std::function<void()> deletion;
};

TEST_F(ResourceDescriptionUnderFaults, LosesNothingByLoading)
{
    atEveryUse(
        {},
        [&](cResourceDescription& description, const auto& arm) {
            arm();
            description.setResourceName(u"Room 1");
        },
        [&] {
            EXPECT_EQ(posts().size(), 1U);
            EXPECT_TRUE(isStored(u"old", 8));
        });
}

TEST_F(ResourceDescriptionUnderFaults, IsSavedAsAWholeOrNotAtAllAndTheUserIsTold)
{
    atEveryUse(
        {},
        [&](cResourceDescription& description, const auto& arm) {
            description.setResourceName(u"Room 1");
            arm();
            write(description, u"new", 12);
        },
        [&] {
            const bool isNew = isStored(u"new", 12);
            EXPECT_TRUE(isNew || isStored(u"old", 8));
            EXPECT_EQ(toolkit.messages.size(), isNew ? 0U : 1U);
            EXPECT_EQ(loadedNext(), isNew ? u"new" : u"old");
        });
}

TEST_F(ResourceDescriptionUnderFaults, ThatIsDeletedWhileItIsLoadedIsMadeByTheNext)
{
    atEveryUse(
        deletion,
        [&](cResourceDescription& description, const auto& arm) {
            arm();
            description.setResourceName(u"Room 1");
            EXPECT_TRUE(description.ResourceDescHTML() == u"old" || description.ResourceDescHTML().empty());
        },
        [&] {
            EXPECT_LE(posts().size(), 1U);
            EXPECT_EQ(loadedNext(), u"");
        });
}

TEST_F(ResourceDescriptionUnderFaults, ThatIsDeletedWhileItIsSavedIsInAPostOrTheUserIsTold)
{
    atEveryUse(
        deletion,
        [&](cResourceDescription& description, const auto& arm) {
            description.setResourceName(u"Room 1");
            arm();
            write(description, u"new", 12);
        },
        [&] {
            const bool isNew = isStored(u"new", 12);
            EXPECT_EQ(toolkit.messages.size(), isNew ? 0U : 1U);
            EXPECT_EQ(loadedNext(), isNew ? u"new" : u"");
        });
}

} // namespace
} // namespace rf
