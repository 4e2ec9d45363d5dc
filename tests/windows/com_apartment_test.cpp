#include "com_fixture.h"

#include <future>
#include <thread>

namespace rf::native::com {
namespace {

/// Waits until something stands in the queue of this thread, without taking it.
bool isAnythingPosted()
{
    for (int attempt = 0; attempt < 1000 && HIWORD(GetQueueStatus(QS_POSTMESSAGE)) == 0; ++attempt)
        Sleep(10);
    return HIWORD(GetQueueStatus(QS_POSTMESSAGE)) != 0;
}

TEST(ComApartment, AnswersTheCallThatWaitsWhenItEnds)
{
    const auto boiler = std::make_shared<Boiler>();
    HRESULT answer = E_PENDING;
    std::promise<void> ended;
    std::thread caller;
    {
        const ComApartment apartment;
        ComPtr<IStream> passed;
        ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(
                      IID_IDispatch, Bridge::make()->exportObject(boiler).get(), passed.put()),
            S_OK);
        caller = std::thread{[&, stream = passed.detach()] {
            const ComApartment own;
            ComPtr<IDispatch> dispatch;
            answer = CoGetInterfaceAndReleaseStream(stream, IID_IDispatch, dispatch.putVoid());
            UINT count = 0;
            if (dispatch)
                answer = dispatch->GetTypeInfoCount(&count);
            // What is given up while the apartment ends is a call too, which nobody would answer.
            ended.get_future().wait();
        }};
        EXPECT_TRUE(isAnythingPosted());
    }
    ended.set_value();
    caller.join();
    EXPECT_EQ(answer, S_OK);
}

} // namespace
} // namespace rf::native::com
