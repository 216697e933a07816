# Shows Doxygen a public header as part of the group `group`: documents the header, puts into the
# group whatever has a comment and stands outside of namespaces and classes, and gives all members
# of a ///@{ ... ///@} the comment of the first one. Doxygen does the last itself, but without their
# summaries and at the end of the page. Line for line, so that warnings name the right ones.

function tag() { return isInside ? "" : " @ingroup " group }

/^ *\/\/\/@\{/ { shared = ""; isShared = 1; isBegun = isOpen = depth = 0; $0 = "" }
/^ *\/\/\/@\}/ { isShared = 0; $0 = "" }

isShared && /^ *\/\/\/ / {
    hasOwn = 1
    if (!isBegun)
        shared = shared substr($0, index($0, "///") + 3)
}
isShared && !/^ *(\/\/|#|$)/ {
    if (!isOpen && !hasOwn && shared != "" && !/= delete/)
        $0 = "/**" shared (/^ / ? "" : tag()) " */ " $0
    isBegun = 1
    hasOwn = 0
    code = $0
    sub(/^\/\*.*\*\//, "", code)
    sub(/ *\/\/.*/, "", code)
    depth += gsub(/\{/, "{", code) - gsub(/\}/, "}", code)
    isOpen = depth > 0 || code !~ /[;}]$/
}

NR == 1 { print "/** @file */"; next }
NR > 2 {
    isEndOfComment = last ~ /^\/\/\/ / && !/^\/\/\//
    print last (isEndOfComment || last ~ /^[a-z].*\/\/\/< / ? tag() : "")
}
/^namespace / && last ~ /^\/\/\/ / { isInside = 1 } # one of our own, no forward declaration
/^} \/\/ namespace/ { isInside = 0 }
{ last = $0 }
END { print last }
