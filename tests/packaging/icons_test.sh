# Every icon has the size that its name and its folder promise.
source "$(dirname "${BASH_SOURCE[0]}")/check.sh"
for size in 16 24 32 48 64 128 256; do
    # Width and height stand in the picture's header, from the seventeenth byte.
    same "$size.png" "$size $size" "$(od -An -j16 -N8 -tu4 --endian=big \
        "$source_dir/packaging/icons/$size.png" | xargs)"
done
