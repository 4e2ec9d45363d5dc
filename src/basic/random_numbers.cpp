#include "basic/random_numbers.h"

#include <random>

namespace rf {

RandomNumbers systemRandomNumbers()
{
    return [engine = std::mt19937_64{std::random_device{}()},
               distribution = std::uniform_real_distribution<double>{}]() mutable { return distribution(engine); };
}

} // namespace rf
