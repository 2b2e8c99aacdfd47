//! Where the libraries are: the folder in `QUORVEL_LIB_DIR`; if that is not set, where the linker looks by itself.

fn main() {
    println!("cargo:rerun-if-env-changed=QUORVEL_LIB_DIR");
    if let Ok(folder) = std::env::var("QUORVEL_LIB_DIR") {
        println!("cargo:rustc-link-search=native={folder}");
    }
}
