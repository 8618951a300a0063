// The 8-point float butterflies of the 8x8 DCT (scaled factorisation of Arai, Agui and
// Nakajima), written once for plain floats and for vectors (one column per lane). Included
// twice by src/transform/dct8x8.cpp: in the plain namespace and in every SIMD target's; no
// include guard on purpose.
//
// aanFwd8 leaves the forward DCT of v[0..7] times 8 a(k) in v[k] (a(0) = 1,
// a(k) = sqrt(2) cos(k pi / 16)); aanInv8 undoes it for inputs pre-multiplied by a(k) / 8 per
// axis. The factor tables are in src/transform/dct8x8.h.

template <class V>
inline void aanFwd8(V* v, V c4, V s8, V k0541, V k1306) {
  // c4 = cos(pi/4), s8 = cos(3 pi/8), k0541 = sqrt(2) cos(3 pi/8), k1306 = sqrt(2) cos(pi/8)
  const V t0 = v[0] + v[7], t7 = v[0] - v[7];
  const V t1 = v[1] + v[6], t6 = v[1] - v[6];
  const V t2 = v[2] + v[5], t5 = v[2] - v[5];
  const V t3 = v[3] + v[4], t4 = v[3] - v[4];
  // even part
  const V e10 = t0 + t3, e13 = t0 - t3, e11 = t1 + t2, e12 = t1 - t2;
  v[0] = e10 + e11;
  v[4] = e10 - e11;
  const V z1 = (e12 + e13) * c4;
  v[2] = e13 + z1;
  v[6] = e13 - z1;
  // odd part
  const V o10 = t4 + t5, o11 = t5 + t6, o12 = t6 + t7;
  const V z5 = (o10 - o12) * s8;
  const V z2 = o10 * k0541 + z5;
  const V z4 = o12 * k1306 + z5;
  const V z3 = o11 * c4;
  const V z11 = t7 + z3, z13 = t7 - z3;
  v[5] = z13 + z2;
  v[3] = z13 - z2;
  v[1] = z11 + z4;
  v[7] = z11 - z4;
}

template <class V>
inline void aanInv8(V* v, V r2, V k1847, V k1082, V k2613) {
  // r2 = sqrt(2), k1847 = 2 cos(pi/8), k1082 = 2 (cos(pi/8) - cos(3 pi/8)),
  // k2613 = 2 (cos(pi/8) + cos(3 pi/8))
  // even part
  const V e10 = v[0] + v[4], e11 = v[0] - v[4];
  const V e13 = v[2] + v[6];
  const V e12 = (v[2] - v[6]) * r2 - e13;
  const V a0 = e10 + e13, a3 = e10 - e13, a1 = e11 + e12, a2 = e11 - e12;
  // odd part
  const V z13 = v[5] + v[3], z10 = v[5] - v[3];
  const V z11 = v[1] + v[7], z12 = v[1] - v[7];
  const V b7 = z11 + z13;
  const V b11 = (z11 - z13) * r2;
  const V z5 = (z10 + z12) * k1847;
  const V b10 = z12 * k1082 - z5;
  const V b12 = z5 - z10 * k2613;
  const V b6 = b12 - b7;
  const V b5 = b11 - b6;
  const V b4 = b10 + b5;
  v[0] = a0 + b7;
  v[7] = a0 - b7;
  v[1] = a1 + b6;
  v[6] = a1 - b6;
  v[2] = a2 + b5;
  v[5] = a2 - b5;
  v[4] = a3 + b4;
  v[3] = a3 - b4;
}
