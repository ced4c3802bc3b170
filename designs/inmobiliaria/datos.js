// All homes, one entry per home and in the order of the catalogue: featured first, then the latest.
// What users type stands between back quotes, where no apostrophe or backslash does harm; the
// search page takes it apart.
window.homes = {
  id: [%%LISTPRODUCTID%%],
  ref: [%%LISTPRODUCTREF%%],
  picture: [%%LISTMAINPICTUREID%%],
  zoneCode: [%%LISTSALEZONECODE%%],
  price: String.raw%B%%%LISTPRICEAMOUNT%%%B%,
  title: String.raw%B%%%LISTSHORTDESC%%%B%,
  zone: String.raw%B%%%LISTSALEZONE%%%B%,
  type: String.raw%B%%%LIST1%%.ID%B%,
  size: String.raw%B%%%LIST0%%%B%,
  singles: String.raw%B%%%LIST2%%%B%,
  doubles: String.raw%B%%%LIST3%%%B%,
  baths: String.raw%B%%%LIST4%%%B%,
  x15: String.raw%B%%%LIST15%%%B%,
  x16: String.raw%B%%%LIST16%%%B%,
  x18: String.raw%B%%%LIST18%%%B%,
  x19: String.raw%B%%%LIST19%%%B%,
  x20: String.raw%B%%%LIST20%%%B%
};
