#pragma once

namespace swiftroll {

/// Tells the machine that it will soon be asked for what stands at an address: a walk in another order than
/// that of memory waits at every step otherwise. Any address is allowed.
inline void PrefetchMemory([[maybe_unused]] const void* address) {
#if defined(__GNUC__)
    __builtin_prefetch(address);
#endif
}

}  // namespace swiftroll
