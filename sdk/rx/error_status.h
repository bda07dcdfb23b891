// The error statuses of the interface.
#pragma once

namespace Quor {

// 0 is success; every refusal has a number of its own.
enum ErrorStatus {
    eOk = 0,
    eNotImplementedYet = 1,
    eNotApplicable = 2,
    eInvalidInput = 3,
    eOutOfRange = 4,
    eOutOfMemory = 5,
    eDuplicateKey = 6,
    eKeyNotFound = 7,
    eInvalidIndex = 8,
    eNullObjectId = 9,
    eNullObjectPointer = 10,
    eWasErased = 11,
    ePermanentlyErased = 12,
    eWasOpenForRead = 13,
    eWasOpenForWrite = 14,
    eAtMaxReaders = 15,
    eNotOpenForRead = 16,
    eNotOpenForWrite = 17,
    eNotThatKindOfClass = 18,
    eNoDatabase = 19,
    eWrongDatabase = 20,
    eAlreadyInDb = 21,
    eNotInDatabase = 22,
    eInvalidLayer = 23,
    eInvalidName = 24,
    eFileNotFound = 25,
    eFileAccessErr = 26,
    eBadDxfFile = 27,
    eUnsupportedFileFormat = 28,
    eLockViolation = 29,
    eCommandWasInProgress = 30,
    eNotAllowed = 31,
};

} // namespace Quor
