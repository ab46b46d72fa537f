// Prints what an idle, a connected and a crowded signal allocate, here and with the peers, as lines
// "peer|what|bytes|allocations". Counts what passes through operator new, the object itself
// included.

#include "Peers.h"

#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

std::size_t bytes = 0;
std::size_t allocations = 0;

} // namespace

void *operator new(std::size_t size)
{
    bytes += size;
    ++allocations;
    if (void *const memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

/// What is connected does not allocate by itself: a captured pointer fits every peer's callable.
template <class Peer> void print(const char *peerName, const char *what, std::size_t count)
{
    static int sink = 0;
    bytes = allocations = 0;
    const auto peer = std::make_unique<Peer>();
    for (std::size_t i = 0; i < count; ++i)
        peer->connect([target = &sink](int number) { *target += number; });
    std::printf("%s|%s|%zu|%zu\n", peerName, what, bytes, allocations);
}

template <class Peer> void printEmission(const char *peerName)
{
    static int sink = 0;
    Peer peer;
    for (int i = 0; i < 8; ++i)
        peer.connect([target = &sink](int number) { *target += number; });
    fire(peer, 1);
    bytes = allocations = 0;
    fire(peer, 1);
    std::printf("%s|emission to 8|%zu|%zu\n", peerName, bytes, allocations);
}

template <class Peer> void printPeer(const char *name)
{
    {
        Peer first; // what a peer allocates once in a program does not count
        first.connect([](int) {});
    }
    print<Peer>(name, "idle", 0);
    print<Peer>(name, "1 slot", 1);
    print<Peer>(name, "64 slots, growth included", 64);
    printEmission<Peer>(name);
}

} // namespace

int main()
{
    printPeer<Floor<int>>("floor");
    printPeer<Slimsig<int>>("slimsig");
    printPeer<SameRecords<int>>("same records");
    printPeer<Boost<int>>("boost");
    printPeer<BoostDummy<int>>("boost, no mutex");
    printPeer<Sigc<int>>("sigc++");
    printPeer<Qt5<int>>("Qt");
    return 0;
}
