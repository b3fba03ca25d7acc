#include "text/failure.h"

#include <new>
#include <stdexcept>

#include "text/edit.h"
#include "text/literal.h"

namespace swiftroll {

namespace {

// Exceptions of the standard library do not tell where they were thrown.
constexpr std::uint32_t kNoLine = 0;

}  // namespace

TextView Description(FailureKind kind) {
    switch (kind) {
        case FailureKind::InvalidArgument:
            return "Argument incorrect"_t;
        case FailureKind::Overflow:
            return "Dépassement de capacité"_t;
        case FailureKind::OutOfMemory:
            return "Mémoire insuffisante"_t;
        case FailureKind::IndexOutOfRange:
            return "Indice hors limites"_t;
        case FailureKind::TypeMismatch:
            return "Type incompatible"_t;
        case FailureKind::KeyNotFound:
            return "Clé introuvable"_t;
        case FailureKind::Internal:
            return "Erreur interne"_t;
        case FailureKind::FileNotFound:
            return "Fichier introuvable"_t;
        case FailureKind::FileAccess:
            return "Erreur d'accès au fichier"_t;
        case FailureKind::DuplicateKey:
            return "Clé déjà présente"_t;
        case FailureKind::Printer:
            return "Erreur d'imprimante"_t;
    }
    return {};
}

Failure::Failure(FailureKind kind, TextView detail, std::uint32_t line)
    : kind_(kind), description_(Concat({Description(kind), " (", detail, ")"})), line_(line) {}

void ThrowIndexOutOfRange(std::uint32_t line) { throw Failure(FailureKind::IndexOutOfRange, line); }

Failure CurrentFailure() {
    try {
        throw;
    } catch (const Failure& failure) {
        return failure;
    } catch (const std::bad_alloc&) {
        return Failure(FailureKind::OutOfMemory, kNoLine);
    } catch (const std::length_error&) {
        return Failure(FailureKind::OutOfMemory, kNoLine);
    } catch (const std::out_of_range&) {
        return Failure(FailureKind::IndexOutOfRange, kNoLine);
    } catch (const std::exception& exception) {
        return Failure(FailureKind::Internal, exception.what(), kNoLine);
    }
}

}  // namespace swiftroll
