// Blocks on the heap, which GCC's runtime lacks: their class, their counting, and their end.
//
// This is what we believe the Mac does with a block that is born on the heap, and no proof of it. GNUstep
// sends messages to blocks, so here a block has a class with methods; it finds `_Block_copy` and
// `_Block_release` in the program.
//
// Source: clang.llvm.org/docs/Block-ABI-Apple.html.
#include "tests/gnustep/standins/runtime/Blocks.h"

#include "base/Fatal.h"
#include "mac/objc/Block.h"
#include "mac/objc/RuntimeClass.h"

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <string>
#include <utility>

namespace kestrune::gnustep {

namespace {

struct Descriptor {
    unsigned long reserved;
    unsigned long size;
    void (*copy)(void* target, const void* source);
    void (*dispose)(const void* literal);
    const char* signature;
};

struct Literal {
    void* isa;
    int flags;
    int reserved;
    void (*invoke)(Literal* literal, id argument);
    const Descriptor* descriptor;
};

constexpr int OneReference = 2;
constexpr int ReferenceMask = 0xfffe;
constexpr int NeedsFree = 1 << 24;
constexpr int HasCopyAndDispose = 1 << 25;
constexpr int HasSignature = 1 << 30;

Literal* literalOf(const void* block) { return static_cast<Literal*>(const_cast<void*>(block)); }

// Timers and observers call blocks that take the timer or the notification and give nothing.
bool isCalledHere(const std::string& signature) {
    return signature.find("@?") != std::string::npos && mac::normalizedEncoding(signature) == "v@@";
}

// A fault in what is read of a descriptor, if there is one.
std::string faultIn(const Descriptor& descriptor, std::size_t sizeOfMemory) {
    if (descriptor.reserved != 0) {
        return "its descriptor has something where nothing may be";
    }
    if (descriptor.size < sizeof(Literal) || descriptor.size > sizeOfMemory) {
        return "its size is " + std::to_string(descriptor.size) + ", and it has " +
               std::to_string(sizeOfMemory) + " bytes";
    }
    if (descriptor.copy == nullptr || descriptor.dispose == nullptr) {
        return "it has no function to copy or to dispose of it";
    }
    const std::string signature = descriptor.signature != nullptr ? descriptor.signature : "";
    return isCalledHere(signature) ? "" : "its signature is \"" + signature + "\", and it is called as v@?@";
}

std::string faultIn(const Literal& literal) {
    const int flags = std::atomic_ref(const_cast<int&>(literal.flags)).load() & ~ReferenceMask;
    for (const auto& [flag, meaning] : {std::pair(NeedsFree, "that it is on the heap"),
                                        std::pair(HasCopyAndDispose, "that it has functions to copy it"),
                                        std::pair(HasSignature, "that it has a signature")}) {
        if ((flags & flag) == 0) {
            return std::string("its flags do not say ") + meaning;
        }
    }
    if (flags != (NeedsFree | HasCopyAndDispose | HasSignature) || literal.reserved != 0) {
        return "its flags say more than is true of it";
    }
    return faultIn(*literal.descriptor, malloc_usable_size(const_cast<Literal*>(&literal)));
}

// Of a block with a fault the Mac would read something else, and say nothing.
void require(const Literal& literal) {
    const std::string fault = faultIn(literal);
    if (!fault.empty()) {
        fatal("A block is not laid out as it has to be: " + fault + ".");
    }
}

id copyBlock(id block, SEL) noexcept { return static_cast<id>(_Block_copy(block)); }

id copyBlockWithZone(id block, SEL, const void* /*zone*/) noexcept {
    return static_cast<id>(_Block_copy(block));
}

void releaseBlock(id block, SEL) noexcept { _Block_release(block); }

mac::Unsigned countReferences(id block, SEL) noexcept {
    const int flags = std::atomic_ref(literalOf(block)->flags).load();
    return static_cast<mac::Unsigned>((flags & ReferenceMask) / OneReference);
}

Class makeClass() {
    mac::RuntimeClass made("KestruneHeapBlock");
    made.addMethod(mac::Action<id()>{"copy"}, copyBlock);
    made.addMethod(mac::Action<id(const void*)>{"copyWithZone:"}, copyBlockWithZone);
    made.addMethod(mac::Action<id()>{"retain"}, copyBlock);
    made.addMethod(mac::Action<void()>{"release"}, releaseBlock);
    made.addMethod(mac::Action<mac::Unsigned()>{"retainCount"}, countReferences);
    return made.finish();
}

} // namespace

BlockLayout layoutOf(id block) {
    const Literal& literal = *literalOf(block);
    const Descriptor& descriptor = *literal.descriptor;
    return {literal.flags, literal.reserved, descriptor.reserved, descriptor.size, descriptor.signature};
}

// As everybody who calls a block: its function knows it by another type than the caller.
__attribute__((no_sanitize("undefined"))) void callBlock(id block) {
    literalOf(block)->invoke(literalOf(block), nullptr);
}

extern "C" void* _Block_copy(const void* block) {
    require(*literalOf(block));
    std::atomic_ref(literalOf(block)->flags).fetch_add(OneReference);
    return literalOf(block);
}

extern "C" void _Block_release(const void* block) {
    Literal* const literal = literalOf(block);
    const int flags = std::atomic_ref(literal->flags).fetch_sub(OneReference) - OneReference;
    if ((flags & ReferenceMask) != 0) {
        return;
    }
    if ((flags & HasCopyAndDispose) != 0) {
        literal->descriptor->dispose(literal);
    }
    std::free(literal); // NOLINT(cppcoreguidelines-no-malloc): whoever made it took it from there.
}

} // namespace kestrune::gnustep

namespace kestrune::mac {

void* classOfHeapBlocks() {
    static const Class type = gnustep::makeClass();
    return reinterpret_cast<void*>(type);
}

} // namespace kestrune::mac
