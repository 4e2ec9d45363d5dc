#pragma once

#include "recording_dispatch.h"

#include "outlook/proxy.h"

#include <gtest/gtest.h>

#include <concepts>
#include <functional>
#include <initializer_list>
#include <string_view>
#include <type_traits>

namespace rf::test {

using automation::Invocation;
using automation::Variant;
using automation::Invocation::Call;
using automation::Invocation::Get;
using automation::Invocation::Put;

/// What a face made of an answer, as a value to compare.
template <class Result>
[[nodiscard]] Variant asVariant(const Result& result)
{
    if constexpr (std::is_enum_v<Result>)
        return Variant{outlook::code(result)};
    else
        return Variant{result};
}

/// One member of a face: the use that the object behind it must see, and its answer, which the face must hand on.
template <class Face>
struct MemberUse {
    const char16_t* member;
    Invocation kind;
    std::vector<Variant> arguments;
    Variant answer;
    std::function<Variant(const Face&)> run;

    template <class Run>
    MemberUse(const char16_t* memberName, Invocation invocation, std::vector<Variant> expected, Variant given, Run use)
        : member(memberName)
        , kind(invocation)
        , arguments(std::move(expected))
        , answer(std::move(given))
        , run([use](const Face& face) {
            if constexpr (std::is_void_v<std::invoke_result_t<Run, const Face&>>) {
                use(face);
                return Variant{};
            } else {
                return asVariant(use(face));
            }
        })
    {
    }
};

/// Runs each use twice, once with an answer and once with a failure, which must name a line of the test.
template <class Face>
void expectUses(std::initializer_list<MemberUse<Face>> uses)
{
    for (const auto& use : uses) {
        SCOPED_TRACE(toUtf8(use.member));
        const auto recorder = std::make_shared<RecordingDispatch>();
        const Face face{automation::Object{recorder}};

        recorder->answer = use.answer;
        EXPECT_TRUE(use.run(face) == use.answer) << "another answer";
        ASSERT_EQ(recorder->uses.size(), 1U);
        EXPECT_EQ(toUtf8(recorder->uses[0].member), toUtf8(use.member));
        EXPECT_EQ(recorder->uses[0].kind, use.kind);
        EXPECT_TRUE(recorder->uses[0].arguments == use.arguments) << "other arguments";

        recorder->failure = 70;
        try {
            static_cast<void>(use.run(face));
            ADD_FAILURE() << "the failure is lost";
        } catch (const automation::Error& error) {
            EXPECT_EQ(error.number(), 70);
            EXPECT_TRUE(std::string_view{error.where().file_name()}.ends_with("_test.cpp"))
                << error.where().file_name();
        }
    }
}

} // namespace rf::test
