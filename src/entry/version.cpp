// The version, as a text in the library's file: the exports are routines only.
namespace {

[[gnu::used]] constexpr char version[] = "@(#) Quorvel " QUORVEL_VERSION;

}  // namespace
