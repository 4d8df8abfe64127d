#pragma once

#include <QtEndian>

/// A little-endian number of a record, at any offset. Unlike qint16_le and its like it is bytes and
/// so needs no alignment: those must not stand at an odd address, as in a packed record they do.
template <class Number>
class LittleEndian {
 public:
  LittleEndian &operator=(Number number) {
    qToLittleEndian(number, bytes_);
    return *this;
  }
  operator Number() const { return qFromLittleEndian<Number>(bytes_); }

 private:
  uchar bytes_[sizeof(Number)];
};
